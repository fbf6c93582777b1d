// The sound and recognition tables of a glossary read through their index: the library then
// answers from the offsets alone (hasSound, getSoundPath) or fetches single records at them,
// so every offset must point at its word's record, and every record the index rule admits
// must have one. The rule is the one a save applies, over the quality folders being checked.
// The sound files of the words the glossary says have one must be in those folders.
#include <lumora/check/glossary_checks.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/support/paths.h>

#include <map>
#include <string>
#include <vector>

namespace lumora {
namespace {

constexpr int32_t kUsableRecordsIndexVersion = 2;
constexpr uint32_t kLastWord = 65534;

struct RecordStart {
  uint64_t offset = 0;
  uint8_t status = 0;
};

// Reads a set file as the library reads it whole, noting where each word's record starts. A
// word given twice keeps its first record, as the table does.
template <typename Record>
class RecordStarts : public Object {
 public:
  const char* ClassName() const override { return "RecordStarts"; }
  void Serialize(Archive& ar) override {
    const uint32_t version = ar.ReadU32();
    const uint32_t count = ar.ReadU32();
    ar.Require(count);
    for (uint32_t i = 0; i < count; ++i) {
      const uint64_t offset = ar.Position();
      Record record{};
      record.Serialize(ar, version);
      starts.emplace(record.Key(), RecordStart{offset, record.status});
    }
  }

  std::map<uint16_t, RecordStart> starts;
};

// What one indexed table holds, in the words of its findings.
struct IndexedTable {
  std::u16string_view name;
  std::string setName;    // "t_Glo_Sounds.set"
  std::string indexName;  // "t_Glo_Sounds.idx"
  std::string setFile;    // relative to the root
  std::string indexFile;  // relative to the root
  const DWordArray& offsets;
  int32_t version;
  uint8_t presentStatus;
  const char* has;    // "a sound"
  const char* hasNo;  // "no sound"
};

bool Listed(const DWordArray& offsets, uint32_t word) {
  return word < offsets.size() && offsets[word] != kNoRecordOffset;
}

void CheckOffsets(const IndexedTable& t, const std::map<uint16_t, RecordStart>& starts,
                  CheckReport& report) {
  for (uint32_t word = 1; word < t.offsets.size() && word <= kLastWord; ++word) {
    const uint32_t offset = t.offsets[word];
    if (offset == kNoRecordOffset) continue;
    ++report.checked;
    const std::string w = "word " + std::to_string(word);
    const auto found = starts.find(static_cast<uint16_t>(word));
    if (found == starts.end()) {
      report.Error(t.indexFile, "gives " + w + " byte " + std::to_string(offset) + ", but " +
                                    t.setName +
                                    " holds no record of it: the library reads "
                                    "whatever lies there");
    } else if (found->second.offset != offset) {
      report.Error(t.indexFile, "gives " + w + " byte " + std::to_string(offset) +
                                    ", but its record in " + t.setName + " starts at byte " +
                                    std::to_string(found->second.offset) +
                                    ": the library reads the wrong bytes for it");
    } else if (t.version >= kUsableRecordsIndexVersion && found->second.status != t.presentStatus) {
      report.Error(t.indexFile, "gives " + w + " an offset, but its record's status is " +
                                    std::to_string(found->second.status) + ", not " +
                                    std::to_string(t.presentStatus) + ": the library says " + w +
                                    " has " + t.has);
    }
  }
}

void CheckRecordsListed(const CheckedRoot& root, const CGloV6& g, const IndexedTable& t,
                        const std::map<uint16_t, RecordStart>& starts, CheckReport& report) {
  for (const auto& [word, start] : starts) {
    ++report.checked;
    if (Listed(t.offsets, word)) continue;
    const bool present = start.status == t.presentStatus;
    if (!IsIndexableRecord(g.folder, word, present, t.version, &root.qualityFolders())) continue;
    const std::string why = t.version >= kUsableRecordsIndexVersion
                                ? "its record in " + t.setName + " has status " +
                                      std::to_string(t.presentStatus) +
                                      " and its sound files are in every quality folder checked"
                                : t.setName + " holds its record";
    report.Error(t.indexFile, "gives word " + std::to_string(word) + " no offset, though " + why +
                                  ": the library says it has " + t.hasNo);
  }
}

// The words the library says have the table's data: from version 2 on those the index lists,
// before that those whose record says so.
std::vector<uint16_t> Claimed(const IndexedTable& t,
                              const std::map<uint16_t, RecordStart>& starts) {
  std::vector<uint16_t> words;
  if (t.version >= kUsableRecordsIndexVersion) {
    for (uint32_t word = 1; word < t.offsets.size() && word <= kLastWord; ++word) {
      if (t.offsets[word] != kNoRecordOffset) words.push_back(static_cast<uint16_t>(word));
    }
  } else {
    for (const auto& [word, start] : starts) {
      if (start.status == t.presentStatus && Listed(t.offsets, word)) words.push_back(word);
    }
  }
  return words;
}

// A quality folder that is not there at all is one finding rather than one per word.
void CheckSoundFiles(const CheckedRoot& root, const CGloV6& g, const std::vector<uint16_t>& words,
                     CheckReport& report) {
  if (words.empty()) return;
  for (uint8_t quality : root.qualityFolders()) {
    const std::string folder = g.folder + "Q" + std::to_string(quality) + kPathSeparator;
    ++report.checked;
    if (!FolderExists(folder)) {
      report.Error(root.Relative(folder), "does not exist, though the glossary says " +
                                              std::to_string(words.size()) + " words have a sound");
      continue;
    }
    for (uint16_t word : words) {
      ++report.checked;
      const std::string path = QualityFilePath(g.folder, quality, word);
      if (FileExists(path)) continue;
      report.Error(root.Relative(path), "is missing, though the glossary says word " +
                                            std::to_string(word) + " has a sound");
    }
  }
}

// Checks one table when the library read it through its index; answers the words the library
// says have its data.
template <typename Record>
std::vector<uint16_t> CheckIndexedTable(const CheckedRoot& root, const CGloV6& g,
                                        const IndexedTable& t, CheckReport& report) {
  if (!FileExists(SetIndexPath(g.folder, t.name))) return {};
  RecordStarts<Record> records;
  const LoadResult read = ReadArchiveFile(SetFilePath(g.folder, t.name), records);
  if (!read.ok()) {
    report.Error(t.setFile, "does not read (" + read.failure().Details() +
                                "): the records the library fetches through " + t.indexName +
                                " fail or come out wrong");
    return {};
  }
  CheckOffsets(t, records.starts, report);
  CheckRecordsListed(root, g, t, records.starts, report);
  return Claimed(t, records.starts);
}

IndexedTable TableOf(const CheckedRoot& root, const CGloV6& g, std::u16string_view name,
                     const DWordArray& offsets, int32_t version, uint8_t present, const char* has,
                     const char* has_no) {
  return {name,
          SetFilePath("", name),
          SetIndexPath("", name),
          root.Relative(SetFilePath(g.folder, name)),
          root.Relative(SetIndexPath(g.folder, name)),
          offsets,
          version,
          present,
          has,
          has_no};
}

}  // namespace

void CheckGlossaryIndexes(const CheckedRoot& root, const CGloV6& g, CheckReport& report) {
  const IndexedTable sounds = TableOf(root, g, u"t_Glo_Sounds", g.soundIndex, g.soundIndexVersion,
                                      GloSoundRecord::kPresentStatus, "a sound", "no sound");
  const IndexedTable recos =
      TableOf(root, g, u"t_Glo_Reco1600", g.recoIndex, g.recoIndexVersion,
              GloRecoRecord::kPresentStatus, "recognition data", "no recognition data");
  CheckSoundFiles(root, g, CheckIndexedTable<GloSoundRecord>(root, g, sounds, report), report);
  CheckIndexedTable<GloRecoRecord>(root, g, recos, report);
}

}  // namespace lumora
