// A whole glossary folder from arbitrary bytes, then every lookup and search a host makes, and
// the rebuild of the alphabetical order. The first byte picks how the folder is made:
//   even: each of the ten set files and the two index files is present or not, with bytes
//         taken from the input as they are;
//   odd:  a glossary is assembled from the input with tables that need not agree (links and
//         order entries to absent words, letter numbers beyond the letters, odd texts), is
//         worked on in memory, saved with or without indexes, has one of its files cut short or
//         changed at one byte, and is loaded again.
// What loaded is worked on whether the load succeeded or not.
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/platform/notify.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "lexicon_inputs.h"
#include "scratch_folder.h"

namespace {

using fuzzing::kGlossaryLanguages;
using fuzzing::kGlossaryTableCount;
using fuzzing::kIndexedTables;
using fuzzing::kSetFileNames;
using fuzzing::ScratchFolder;
using fuzzing::WriteFile;

std::vector<std::string> FolderFiles(const std::string& folder) {
  std::vector<std::string> files;
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
    files.push_back(entry.path().string());
  }
  return files;
}

// A text of a few units, many of them the ones the headword rules treat specially (and a lone
// high surrogate).
std::u16string Text(FuzzedDataProvider& in) {
  static constexpr char16_t kUnits[] = {
      u'a', u'E', u'\u00e9', u'\u00c2', u'(', u')',      u'\'',     u' ',
      u'3', u'|', u';',      u',',      u'-', u'\u0416', u'\u2019', static_cast<char16_t>(0xD83D)};
  std::u16string text;
  const size_t length = in.ConsumeIntegralInRange<size_t>(0, 12);
  for (size_t i = 0; i < length; ++i) {
    text.push_back(in.ConsumeBool() ? kUnits[in.ConsumeIntegralInRange<size_t>(0, 15)]
                                    : static_cast<char16_t>(in.ConsumeIntegral<uint16_t>()));
  }
  return text;
}

// A word number: mostly a small one, so that tables refer to each other, sometimes any.
uint16_t WordId(FuzzedDataProvider& in) {
  return in.ConsumeBool() ? in.ConsumeIntegralInRange<uint16_t>(0, 12)
                          : in.ConsumeIntegral<uint16_t>();
}

void Assemble(lumora::CGloV6& g, FuzzedDataProvider& in) {
  const size_t words = in.ConsumeIntegralInRange<size_t>(0, 24);
  for (size_t i = 0; i < words && in.remaining_bytes() > 0; ++i) {
    lumora::GloFNRecord fn;
    fn.fnId = WordId(in);
    fn.writingId = in.ConsumeBool() ? fn.fnId : WordId(in);
    fn.kind = in.ConsumeIntegralInRange<uint8_t>(0, 3);
    for (size_t c = in.ConsumeIntegralInRange<size_t>(0, 3); c > 0; --c) {
      fn.codes.push_back(in.ConsumeIntegralInRange<uint32_t>(49990, 60010));
    }
    for (size_t c = in.ConsumeIntegralInRange<size_t>(0, 3); c > 0; --c) {
      fn.classIds.push_back(in.ConsumeIntegral<uint32_t>());
    }
    fn.level = in.ConsumeIntegralInRange<uint8_t>(0, 6);
    fn.letterId = in.ConsumeIntegralInRange<uint16_t>(0, 8);
    g.fns.Insert(fn);
    g.writings.Insert({fn.writingId, Text(in)});
    if (in.ConsumeBool()) g.clouds.Insert({fn.fnId, Text(in)});
    if (in.ConsumeBool()) {
      lumora::GloSoundRecord sound;
      sound.fnId = fn.fnId;
      sound.status = in.ConsumeIntegralInRange<uint8_t>(0, 5);
      sound.text1 = Text(in);
      sound.text2 = Text(in);
      if (in.ConsumeBool()) sound.qualitiesA.push_back(in.ConsumeIntegral<uint8_t>());
      g.sounds.Insert(std::move(sound));
    }
    if (in.ConsumeBool()) {
      g.recos.Insert({fn.fnId, 0, in.ConsumeIntegralInRange<uint8_t>(0, 4), Text(in), Text(in)});
    }
    if (in.ConsumeBool()) g.translations.Insert({in.ConsumeIntegral<uint8_t>(), fn.fnId, Text(in)});
    if (in.ConsumeBool()) g.comments.Insert({fn.fnId, in.ConsumeIntegral<uint8_t>(), Text(in)});
    if (in.ConsumeBool()) {
      g.links.Insert({fn.fnId, WordId(in), in.ConsumeIntegral<uint16_t>(), 0,
                      in.ConsumeIntegral<uint16_t>(), 0});
    }
    if (in.ConsumeBool()) g.sorted.Insert({in.ConsumeIntegral<uint16_t>(), WordId(in)});
  }
  for (size_t l = in.ConsumeIntegralInRange<size_t>(0, 4); l > 0; --l) {
    g.letters.Insert({Text(in), in.ConsumeIntegralInRange<uint16_t>(0, 6),
                      in.ConsumeIntegral<uint16_t>(), in.ConsumeIntegral<uint16_t>()});
  }
}

void Exercise(const lumora::CGloV6& g, FuzzedDataProvider& in) {
  const uint16_t id = WordId(in);
  const uint16_t other = WordId(in);
  for (const uint16_t fnId : {id, other, uint16_t{0}, uint16_t{65535}}) {
    lumora::GloFNRecord fn;
    g.getFN(fnId, fn);
    g.getWritingText(fnId);
    lumora::GloWritingRecord writing;
    g.getWriting(fnId, writing);
    lumora::GloCloudRecord cloud;
    g.getCloud(fnId, cloud);
    g.hasSound(fnId);
    lumora::GloSoundRecord sound;
    g.getSound(fnId, sound);
    g.hasReco(fnId);
    lumora::GloRecoRecord reco;
    g.getReco(fnId, reco);
    g.getRecoFrom(fnId, reco, 1);
    g.getSoundPath(fnId, 1);
    g.getCommentsText(fnId);
    g.getCommentOfType7(fnId);
    g.getSelectedComments(fnId);
    g.getTranslation(fnId, in.ConsumeIntegral<uint8_t>());
    lumora::GloFNLetterRecord letter;
    g.getLetter(fnId, letter);
    lumora::GloLinkRecord link;
    g.getLink(fnId, other, link);
    std::vector<lumora::GloLinkRecord> links;
    g.getLinks(fnId, links);
  }
  g.getTranslations({id, other, id}, in.ConsumeIntegral<uint8_t>());
  std::vector<uint8_t> languages;
  g.getTranslationLanguages(languages);
  g.hasTranslationLanguage(in.ConsumeIntegral<uint8_t>());
  std::vector<lumora::GloFNLetterRecord> letters;
  g.getLetters(letters);
  std::vector<uint8_t> levels;
  g.getLevels(levels, id, other);
  std::vector<uint32_t> classIds;
  g.getClassIds(classIds, id, other);
  lumora::WordBuckets buckets;
  const uint8_t minLevel = in.ConsumeIntegralInRange<uint8_t>(0, 4);
  const uint8_t maxLevel = in.ConsumeIntegralInRange<uint8_t>(0, 4);
  const uint32_t needCode = in.ConsumeBool() ? 1 : 0;
  g.getWordsByLetter(buckets, in.ConsumeIntegral<uint32_t>(), needCode, minLevel, maxLevel,
                     in.ConsumeIntegralInRange<uint16_t>(0, 8));
  g.getLinkedWordsByLetter(buckets, id, other, 0, needCode, minLevel, maxLevel, 0);
  g.findWords(buckets, 0, Text(in), 0, needCode, in.ConsumeBool());
  g.getErrors();
}

// Cuts one of the folder's files short or changes one of its bytes.
void Damage(const std::string& folder, FuzzedDataProvider& in) {
  const std::vector<std::string> files = FolderFiles(folder);
  if (files.empty() || !in.ConsumeBool()) return;
  const std::string& file = files[in.ConsumeIntegralInRange<size_t>(0, files.size() - 1)];
  std::string bytes;
  {
    std::ifstream stream(file, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
  }
  if (bytes.empty()) return;
  const size_t at = in.ConsumeIntegralInRange<size_t>(0, bytes.size() - 1);
  if (in.ConsumeBool()) {
    bytes.resize(at);
  } else {
    bytes[at] = static_cast<char>(in.ConsumeIntegral<uint8_t>());
  }
  WriteFile(file, bytes);
}

void LoadAndExercise(const std::string& folder, uint8_t language, FuzzedDataProvider& in) {
  lumora::CGloV6 loaded;
  loaded.language = language;
  loaded.mediaTemplate = "/tmp/lumora-fuzz-sounds/Q%d/%03d/%02d%%.wav";
  loaded.load(folder);
  Exercise(loaded, in);
  lumora::rebuildSortAndLetters(loaded);
  Exercise(loaded, in);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const ScratchFolder scratch;
  // Damaged texts make the glossary say so for every word; a terminal line per message would
  // cost more than the rest of a run.
  static const bool quiet = (lumora::SetNotifyHandler([](const std::string&) {}), true);
  (void)quiet;
  if (size == 0 || scratch.path().empty()) return 0;
  scratch.Empty();
  FuzzedDataProvider in(data, size);
  const bool assembled = in.ConsumeIntegral<uint8_t>() % 2 == 1;
  const uint8_t language =
      kGlossaryLanguages[in.ConsumeIntegralInRange<size_t>(0, kGlossaryLanguages.size() - 1)];
  if (!assembled) {
    for (size_t i = 0; i < kGlossaryTableCount; ++i) {
      if (in.ConsumeBool()) {
        WriteFile(lumora::SetFilePath(scratch.path(), kSetFileNames[i]),
                  in.ConsumeRandomLengthString(4096));
      }
    }
    for (std::u16string_view table : kIndexedTables) {
      if (in.ConsumeBool()) {
        WriteFile(lumora::SetIndexPath(scratch.path(), table), in.ConsumeRandomLengthString(512));
      }
    }
    LoadAndExercise(scratch.path(), language, in);
    return 0;
  }
  lumora::CGloV6 g;
  g.language = language;
  Assemble(g, in);
  Exercise(g, in);
  lumora::rebuildSortAndLetters(g);
  g.setFolder(scratch.path());
  g.save(in.ConsumeBool(), {1, 3});
  Damage(scratch.path(), in);
  LoadAndExercise(scratch.path(), language, in);
  return 0;
}
