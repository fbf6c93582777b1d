// The two glossary tables that can be read one record at a time (t_Glo_Sounds and
// t_Glo_Reco1600). Beside the set file, an index file <name>.idx holds, for every word number
// from 0 to the highest key, the u32 offset of that word's record in the set file, or
// kNoRecordOffset. The index's version is kept in CRCFile.ini, section Main, key
// "Version_<name>.idx"; indexes from before that key existed read as version 1.
#pragma once

#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/load_result.h>
#include <lumora/platform/stream.h>
#include <lumora/platform/typed_array.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace lumora {

inline constexpr uint32_t kNoRecordOffset = 0xFFFFFFFF;

std::string SetIndexPath(const std::string& folder, std::u16string_view name);

// The index version recorded for table `name` in `folder`; 1 when none is recorded.
int32_t ReadSetIndexVersion(const std::string& folder, std::u16string_view name);
// Records, with the rest of `commit`, that the index of `name` follows the usable-record rule
// (version 2).
void StageSetIndexVersion(FolderCommit& commit, std::u16string_view name);

// Reads the index of `name`: fails when its recorded version is 100 or more (then nothing
// changes) or the file cannot be opened. Otherwise `version` takes the recorded version and
// `offsets` every complete u32 of the file; a partial entry at the end is ignored.
LoadResult LoadSetIndex(const std::string& folder, std::u16string_view name, int32_t& version,
                        DWordArray& offsets);
bool ReadSetIndex(const std::string& folder, std::u16string_view name, int32_t& version,
                  DWordArray& offsets);

// Where the media of `word` in quality folder `quality` lies below the glossary folder:
// Q<quality>/<word / 100, three digits>/<word % 100, two digits>.swf.
std::string QualityFilePath(const std::string& folder, uint32_t quality, uint32_t word);

// Whether a record gets an offset in the index. Words 0 and 65535 never do. An index older
// than version 2 lists every other record; from version 2 on only records whose status is the
// table's present value and whose media exists in every quality folder of `qualities` (none
// needed when it is null or empty).
bool IsIndexableRecord(const std::string& folder, uint32_t word, bool present,
                       int32_t index_version, const ByteArray* qualities);

// Index entries written while the set file is written: entries for the words skipped since
// the previous record, then the record's own entry.
class SetIndexEntries {
 public:
  SetIndexEntries(Archive& set, const StringSink& set_sink, Archive& index)
      : set_(set), setSink_(set_sink), index_(index) {}
  // Call just before writing the record of `word`; words must come in ascending order.
  void Enter(uint32_t word, bool usable);

 private:
  Archive& set_;
  const StringSink& setSink_;
  Archive& index_;
  uint32_t nextWord_ = 0;
};

// Adds the set file (glossary version, then what `write_records` writes) and its index to
// `commit`, both checksummed.
void StageIndexedSetFile(FolderCommit& commit, std::u16string_view name,
                         const std::function<void(Archive&, SetIndexEntries&)>& write_records);

// Reads one record of `name` at the offset the index gives `word`, with the newest layout and
// without checksum checking. False for words outside 1..65534 or the index, words without
// an offset, and any read error; `read` then may have seen part of a record.
bool FetchSetRecord(const std::string& folder, std::u16string_view name, const DWordArray& offsets,
                    uint32_t word, const std::function<void(Archive&)>& read);

// A table read through its index when one exists and `with_index` is false: the offsets and
// the index version are read and no record is. Otherwise the set file is read whole.
template <typename Record>
LoadResult LoadIndexedSetTable(const std::string& folder, std::u16string_view name, bool with_index,
                               SetTable<Record>& table, int32_t& index_version, DWordArray& offsets,
                               uint32_t* version_read = nullptr) {
  if (!with_index && FileExists(SetIndexPath(folder, name))) {
    return LoadSetIndex(folder, name, index_version, offsets);
  }
  return LoadSetTable(folder, name, SetFamily::kGlossary, table, version_read);
}

// Adds the table to `commit`, with its index when `with_index` is true, and index version 2 to
// CRCFile.ini. `index_version` and `qualities` decide which records are usable
// (IsIndexableRecord).
template <typename Record>
void StageIndexedSetTable(FolderCommit& commit, const std::string& folder, std::u16string_view name,
                          SetTable<Record>& table, bool with_index, int32_t index_version,
                          const ByteArray* qualities) {
  const uint32_t schema = WrittenSetVersion(SetFamily::kGlossary);
  if (with_index) {
    StageIndexedSetFile(commit, name, [&](Archive& set, SetIndexEntries& index) {
      table.WriteRecords(set, schema, [&](const Record& record) {
        const bool present = record.status == Record::kPresentStatus;
        index.Enter(record.Key(),
                    IsIndexableRecord(folder, record.Key(), present, index_version, qualities));
      });
    });
  } else {
    StageSetTable(commit, name, schema, table);
  }
  StageSetIndexVersion(commit, name);
}

// One record fetched through the index (see FetchSetRecord); `record` changes only on success.
template <typename Record>
bool FetchSetRecord(const std::string& folder, std::u16string_view name, const DWordArray& offsets,
                    uint32_t word, Record& record) {
  Record fetched{};
  if (!FetchSetRecord(folder, name, offsets, word,
                      [&fetched](Archive& ar) { fetched.Serialize(ar, kLargestGlossarySchema); })) {
    return false;
  }
  record = std::move(fetched);
  return true;
}

}  // namespace lumora
