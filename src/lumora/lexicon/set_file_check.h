// A health check of the set files of a folder: the header (version and record count), whether
// the version suits the table's family, whether the whole file still has the checksum that
// CRCFile.ini recorded for it and, for the tables the library knows, whether the file reads
// record by record with its table's layout as the table's load reads it.
#pragma once

#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_table_catalog.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

enum class SetChecksum { kGood, kBad, kUnlisted };

struct SetFileCheck {
  std::string table;       // the file name without its extension
  bool hasHeader = false;  // at least the version and the count are there
  uint32_t version = 0;    // valid with hasHeader
  uint32_t records = 0;    // the count the header announces; valid with hasHeader
  bool versionAccepted = false;
  SetChecksum checksum = SetChecksum::kBad;
  // The file decoded with its table's layout; none for a table the library does not know.
  std::optional<SetDecode> decode;

  // A file too short for its header, with a checksum other than recorded, with a version its
  // family refuses, or that does not decode.
  bool IsBad() const {
    return checksum == SetChecksum::kBad || !versionAccepted || (decode && !decode->result.ok());
  }
};

// A table's family follows from its name: t_Glo_ glossary, t_Gr_ grammar, else classification.
SetFamily FamilyOfTable(std::string_view table);

// Checks the set file at `path`. An unreadable file and a file shorter than its header count as
// a bad checksum whatever CRCFile.ini says; a file that the list does not name (or names with
// checksum 0) is unlisted. A table's family and layout follow from the file's name.
SetFileCheck CheckSetFile(const std::string& path);

// Every file of `folder` whose name ends in ".set", in name order; nothing when the folder
// cannot be listed.
std::optional<std::vector<SetFileCheck>> CheckSetFolder(const std::string& folder);

}  // namespace lumora
