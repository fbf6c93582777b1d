// The set files of the classification and of each discipline's glossary and grammar, read as
// their loads read them: every file decoded record by record with its table's layout, its
// version against its family, its checksum against CRCFile.ini; tables that are missing, keys
// that come twice, files the checksum list does not cover and set files no load reads. Each
// finding says what the library makes of it, since a load stops at its first failing table.
#include <lumora/check/checks.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/set_file_check.h>
#include <lumora/lexicon/set_table_catalog.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/support/content_ini.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace lumora {
namespace {

constexpr uint32_t kGlossaryFolder = 1001;
constexpr uint32_t kGrammarFolder = 1002;

const char* FamilyName(SetFamily family) {
  switch (family) {
    case SetFamily::kGlossary:
      return "glossary";
    case SetFamily::kGrammar:
      return "grammar";
    case SetFamily::kClassification:
      break;
  }
  return "classification";
}

// What a table that does not load costs: its family's load stops there.
std::string LoadStopsAt(SetFamily family, size_t tables_after) {
  const std::string stops = std::string("the ") + FamilyName(family) + " stops loading here, so ";
  if (tables_after == 0) return stops + "this table stays empty";
  const std::string after = tables_after == 1 ? "one" : std::to_string(tables_after);
  return stops + "this table and the " + after + " after it stay empty";
}

// A table with an index loads without its set file being read: its records are fetched from
// the set file one at a time later, unchecked.
constexpr const char* kFetchedThroughIndex =
    "the library fetches its records one at a time through its index, and may get wrong ones or "
    "none";

std::u16string WideName(std::string_view name) { return std::u16string(name.begin(), name.end()); }

// Every offset of the index must be where the set file's record of that word starts.
void CompareIndexWithRecords(const CheckedRoot& root, const std::string& index_path,
                             const DWordArray& offsets, const SetDecode& decode,
                             CheckReport& report) {
  std::map<uint64_t, const std::string*> key_at;
  for (const DecodedSetRecord& record : decode.records) key_at[record.start] = &record.key;
  uint32_t wrong = 0;
  std::string first;
  for (uint32_t word = 0; word < offsets.size(); ++word) {
    if (offsets[word] == kNoRecordOffset) continue;
    const auto found = key_at.find(offsets[word]);
    if (found != key_at.end() && *found->second == std::to_string(word)) continue;
    if (wrong++ == 0) {
      first = "word " + std::to_string(word) + " at byte " + std::to_string(offsets[word]);
    }
  }
  if (wrong == 0) return;
  report.Error(root.Relative(index_path),
               "has offsets that are not where their word's record starts for " +
                   std::to_string(wrong) + " of its words (the first: " + first +
                   "): the library fetches a wrong record or none for them");
}

// The index that a load reads instead of the set file, and its offsets against the set file's
// records when there is one.
void CheckIndex(const CheckedRoot& root, const std::string& folder, const KnownSetTable& table,
                size_t tables_after, const SetDecode* decode, CheckReport& report) {
  const std::string path = SetIndexPath(folder, WideName(table.name));
  ++report.checked;
  int32_t version = 0;
  DWordArray offsets;
  const LoadResult loaded = LoadSetIndex(folder, WideName(table.name), version, offsets);
  if (!loaded.ok()) {
    report.Error(root.Relative(path), "does not load (" + loaded.failure().Details() +
                                          "): " + LoadStopsAt(table.family, tables_after));
    return;
  }
  if (decode != nullptr) CompareIndexWithRecords(root, path, offsets, *decode, report);
}

void CheckTable(const CheckedRoot& root, const std::string& folder, const KnownSetTable& table,
                size_t tables_after, CheckReport& report) {
  const std::string path = SetFilePath(folder, WideName(table.name));
  const bool through_index =
      table.indexed && FileExists(SetIndexPath(folder, WideName(table.name)));
  const std::string unread =
      through_index ? kFetchedThroughIndex : LoadStopsAt(table.family, tables_after);
  if (!FileExists(path)) {
    report.Error(root.Relative(path), "is missing: " + unread);
    if (through_index) CheckIndex(root, folder, table, tables_after, nullptr, report);
    return;
  }
  const SetFileCheck check = CheckSetFile(path);
  const SetDecode& decode = *check.decode;
  report.checked += 1 + decode.records.size();
  if (!decode.result.ok()) {
    report.Error(root.Relative(path),
                 "does not load (" + decode.result.failure().Details() + "): " + unread);
  } else if (check.checksum == SetChecksum::kUnlisted) {
    report.Warning(root.Relative(path),
                   "has no checksum in CRCFile.ini: a damaged copy would load unnoticed");
  }
  for (const RepeatedSetKey& repeat : decode.repeated) {
    report.Error(root.Relative(path),
                 "record " + std::to_string(repeat.record) + " repeats the key " +
                     decode.records[repeat.record - 1].key + " of record " +
                     std::to_string(repeat.kept) + ": the library keeps record " +
                     std::to_string(repeat.kept));
  }
  if (through_index) CheckIndex(root, folder, table, tables_after, &decode, report);
}

// Set files that no load of this folder reads, a name in another letter case among them.
void CheckStrayFiles(const CheckedRoot& root, const std::string& folder,
                     const std::vector<const KnownSetTable*>& tables, SetFamily family,
                     CheckReport& report) {
  std::set<std::string> read;
  for (const KnownSetTable* table : tables) read.insert(std::string(table->name) + ".set");
  for (const FolderEntry& entry : ListFolder(folder).value_or(std::vector<FolderEntry>{})) {
    if (entry.isFolder || !EqualsIgnoringCase(ExtensionOf(entry.name), ".set") ||
        read.count(entry.name) != 0) {
      continue;
    }
    ++report.checked;
    report.Warning(root.Relative(folder + entry.name), std::string("is not one of the ") +
                                                           FamilyName(family) +
                                                           "'s tables: the library never reads it");
  }
}

void CheckFolder(const CheckedRoot& root, const std::string& folder, SetFamily family,
                 const char* when_missing, CheckReport& report) {
  if (!FolderExists(folder)) {
    report.Error(root.Relative(folder), std::string("is missing: ") + when_missing);
    return;
  }
  // Read as a load reads it: never halfway through a save.
  FolderReadScope scope(folder);
  const std::vector<const KnownSetTable*> tables = SetTablesOf(family);
  for (size_t i = 0; i < tables.size(); ++i) {
    CheckTable(root, folder, *tables[i], tables.size() - i - 1, report);
  }
  CheckStrayFiles(root, folder, tables, family, report);
}

}  // namespace

void CheckSets(const CheckedRoot& root, CheckReport& report) {
  if (!root.iniLoaded) return;
  CheckFolder(root, WithBackslash(ClassesFolder(root.common.local)), SetFamily::kClassification,
              "the library has no classification", report);
  for (const CheckedDiscipline& d : root.disciplines) {
    const std::string& local_root = d.discipline->localRoot;
    CheckFolder(root, WithBackslash(LexiconFolder(local_root, kGlossaryFolder)),
                SetFamily::kGlossary, "the discipline has no glossary", report);
    CheckFolder(root, WithBackslash(LexiconFolder(local_root, kGrammarFolder)), SetFamily::kGrammar,
                "the discipline has no grammar", report);
  }
}

}  // namespace lumora
