// Reading and writing one set file: u32 version, u32 record count, the records in key order,
// nothing else. Files go through the checksummed file with the checksum kept in CRCFile.ini of
// the same folder, so a table that was changed or cut short after it was written reads as
// failed.
#pragma once

#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lumora {

// The three families of set files differ only in the version they write and accept.
enum class SetFamily { kGlossary, kGrammar, kClassification };

uint32_t WrittenSetVersion(SetFamily family);
// Glossary: below 100; grammar: not above 1 (both compared as signed numbers); classification:
// exactly 1.
bool AcceptsSetVersion(SetFamily family, uint32_t version);

// folder + name + extension, the name converted to code page 1252 (table names are plain
// ASCII in practice). `folder` ends in the separator.
std::string SetFilePath(const std::string& folder, std::u16string_view name,
                        std::string_view extension = ".set");

// Reads the records of one set file, the archive at the record count, with the version read;
// `cursor` is to follow the read (ReadSetRecords) so that a failure names the record.
using SetRecordsReader = std::function<void(Archive&, uint32_t version, SetRecordCursor& cursor)>;

// Reads the file at `path`: checks its version against `family`, then hands the archive, at
// the record count, to `read_records`. Succeeds only when everything was read and the checksum
// of the bytes read matches the recorded one; otherwise the failure says where and why: the
// file is missing, ends inside its header or inside record N, announces more records than it
// can hold, has a version its family refuses, has bytes after its last record or a checksum
// other than CRCFile.ini records. `version_read` receives the version once it was accepted.
// Never throws.
LoadResult LoadSetFile(const std::string& path, SetFamily family,
                       const SetRecordsReader& read_records, uint32_t* version_read = nullptr);

// LoadSetFile reduced to whether it succeeded, for readers that read their records without a
// cursor.
bool ReadSetFile(const std::string& path, SetFamily family,
                 const std::function<void(Archive&, uint32_t version)>& read_records,
                 uint32_t* version_read = nullptr);

// Replaces the file with `version` then whatever `write_records` writes, and records its
// checksum in CRCFile.ini, both or neither (FolderCommit). True once both are on disk; a file
// held by another process is waited for, any other failure is final. Never throws.
bool WriteSetFile(const std::string& path, uint32_t version,
                  const std::function<void(Archive&)>& write_records);

// The usual case: one table read from or written to its own set file in `folder`.
template <typename Record>
LoadResult LoadSetTable(const std::string& folder, std::u16string_view name, SetFamily family,
                        SetTable<Record>& table, uint32_t* version_read = nullptr) {
  return LoadSetFile(
      SetFilePath(folder, name), family,
      [&table](Archive& ar, uint32_t version, SetRecordCursor& cursor) {
        table.ReadRecords(ar, version, cursor);
      },
      version_read);
}

template <typename Record>
bool ReadSetTable(const std::string& folder, std::u16string_view name, SetFamily family,
                  SetTable<Record>& table, uint32_t* version_read = nullptr) {
  return LoadSetTable(folder, name, family, table, version_read).ok();
}

template <typename Record>
bool WriteSetTable(const std::string& folder, std::u16string_view name, SetFamily family,
                   SetTable<Record>& table) {
  const uint32_t version = WrittenSetVersion(family);
  return WriteSetFile(SetFilePath(folder, name), version,
                      [&table, version](Archive& ar) { table.WriteRecords(ar, version); });
}

}  // namespace lumora
