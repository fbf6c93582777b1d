#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/packages/partial_lexicon.h>
#include <lumora/packages/table_runs.h>
#include <lumora/resources/media_copy_queue.h>
#include <lumora/resources/report_format.h>
#include <lumora/support/paths.h>

#include <vector>

namespace lumora {
namespace {

// Links from these words belong to every package: they connect the general entries of the
// glossary rather than the words of one lesson.
constexpr uint32_t kFirstGeneralId = 1000;
constexpr uint32_t kLastGeneralId = 10000;
// A link whose attrC holds this value names a headword of its own in attrB.
constexpr uint8_t kLinkNamesWord = 1;

class PartialGlossary {
 public:
  PartialGlossary(const CGloV6& source, CGloV6& target) : source_(source), target_(target) {}

  void CopyLinks(const std::set<uint32_t>& lessons) {
    for (const GloLinkRecord& link : source_.links) {
      const bool general = link.fromId >= kFirstGeneralId && link.fromId <= kLastGeneralId;
      if (!general && !lessons.contains(link.fromId)) continue;
      target_.links.Insert(link);
      if (link.attrC == kLinkNamesWord) CopyFN(link.attrB);
      CopyWriting(link.linkType);
      CopySound(link.attrA);
    }
  }

  // The texts and sound of every headword now in the glossary.
  void CopyWords() {
    std::vector<uint8_t> languages;
    source_.getTranslationLanguages(languages);
    // Copying the writings and sounds adds no headwords, so the table walked stays put.
    for (const GloFNRecord& fn : target_.fns) {
      CopyWriting(fn.writingId);
      CopySound(fn.fnId);
      ForEachInRun(
          source_.comments, {fn.fnId, uint8_t{0}},
          [&](const GloCommentRecord& c) { return c.fnId == fn.fnId; },
          [&](const GloCommentRecord& c) { target_.comments.Insert(c); });
      for (uint8_t language : languages) {
        if (const auto* t = source_.translations.Find({language, fn.fnId})) {
          target_.translations.Insert(*t);
        }
      }
    }
  }

  // Every cloud, and the recognition data of every word that has a sound.
  void CopyCloudsAndRecos() {
    for (const GloCloudRecord& cloud : source_.clouds) target_.clouds.Insert(cloud);
    for (const GloSoundRecord& sound : target_.sounds) {
      GloRecoRecord reco;
      if (source_.getReco(sound.fnId, reco)) target_.recos.Insert(std::move(reco));
    }
  }

 private:
  void CopyFN(uint16_t fnId) {
    if (const GloFNRecord* fn = source_.fns.Find(fnId)) target_.fns.Insert(*fn);
  }
  void CopyWriting(uint16_t writingId) {
    if (const GloWritingRecord* w = source_.writings.Find(writingId)) target_.writings.Insert(*w);
  }
  // Through the accessor, which also fetches the record when the table was read by index.
  void CopySound(uint16_t fnId) {
    GloSoundRecord sound;
    if (source_.getSound(fnId, sound)) target_.sounds.Insert(std::move(sound));
  }

  const CGloV6& source_;
  CGloV6& target_;
};

// Copies the sound file of every word with a sound into each quality folder, in the same place
// below the export's glossary folder as below the source's. False when a folder cannot be made;
// the copies' own outcomes are the queue's.
bool CopySoundFiles(const CGloV6& source, const CGloV6& target, const ByteArray& qualityFolders,
                    CopyQueue& copies) {
  bool result = true;
  for (const GloSoundRecord& sound : target.sounds) {
    for (uint8_t quality : qualityFolders) {
      const std::string from = QualityFilePath(source.folder, quality, sound.fnId);
      const std::string to = QualityFilePath(target.folder, quality, sound.fnId);
      if (!FileExists(from)) {
        copies.Say(from + " is missing.\n");
        continue;
      }
      const std::string parent = FolderOf(to);
      if (!copies.MakeFolder(parent)) {
        copies.Say(FormatReportLine("Can not create directory : %s\n", parent.c_str()));
        result = false;
      }
      copies.Copy(from, to, FormatReportLine("Can not copy file: %s\n", from.c_str()));
    }
  }
  return result;
}

}  // namespace

bool ExportPartialGlossary(const CGloV6& source, const std::set<uint32_t>& referencedIds,
                           ByteArray qualityFolders, const std::string& folder,
                           std::string& report) {
  CGloV6 target;
  target.language = source.language;
  target.setFolder(folder);
  PartialGlossary partial(source, target);
  partial.CopyLinks(LessonNumbers(referencedIds));
  partial.CopyWords();
  partial.CopyCloudsAndRecos();
  CopyQueue copies(report);
  bool result = CopySoundFiles(source, target, qualityFolders, copies);
  result = copies.Finish() && result;
  rebuildSortAndLetters(target);
  std::vector<uint32_t> qualities(qualityFolders.begin(), qualityFolders.end());
  if (!target.save(true, qualities)) {
    report += "Cannot save the files of the partial glossary";
    return false;
  }
  return result;
}

}  // namespace lumora
