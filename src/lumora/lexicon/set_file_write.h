// Saving set files: a table's bytes are made in memory when a FolderCommit asks for them, and it
// replaces them on disk together with their checksums in CRCFile.ini, all or nothing.
#pragma once

#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/support/folder_commit.h>

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace lumora {

// The file name of table `name`: the name in code page 1252 followed by `extension`.
std::string SetFileName(std::u16string_view name, std::string_view extension = ".set");

// A whole set file: `version`, then whatever `write_records` writes. `expected_size` is room
// made beforehand: a save mostly writes a file of about the size it replaces.
std::string SetFileBytes(uint32_t version, const std::function<void(Archive&)>& write_records,
                         uint64_t expected_size = 0);

// Adds table `name` to `commit`, written with `version`.
template <typename Record>
void StageSetTable(FolderCommit& commit, std::u16string_view name, uint32_t version,
                   SetTable<Record>& table) {
  const std::string file = SetFileName(name);
  const uint64_t size = commit.CurrentSize(file);
  commit.AddProduced(
      file,
      [&table, version, size] {
        return SetFileBytes(
            version, [&](Archive& ar) { table.WriteRecords(ar, version); }, size);
      },
      true, size);
}

// Commits and reduces the outcome to the bool that the table operations answer; the reason of
// a failure stays readable through LastWriteFailure.
bool CommitSaved(FolderCommit& commit);

}  // namespace lumora
