// The classification's five set files: read and written in one fixed order, each under its
// table's name in the classification's folder.
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

// Reads one table, or names it in `stop` when it fails.
template <typename Record>
bool ReadTable(const Classification& owner, std::u16string_view name, SetTable<Record>& table,
               std::u16string_view& stop) {
  uint32_t version = 0;
  const bool read_ok =
      ReadSetTable(owner.folder, name, SetFamily::kClassification, table, &version) &&
      version == owner.formatVersion;
  if (!read_ok) stop = name;
  return read_ok;
}

}  // namespace

void Classification::SetFolder(const std::string& folder_path) {
  folder = WithBackslash(folder_path);
}

bool Classification::load(const std::string& folder_path) {
  return LoadStoppedAt(folder_path).empty();
}

std::u16string_view Classification::LoadStoppedAt(const std::string& folder_path) {
  SetFolder(folder_path);
  FolderReadScope scope(folder);
  std::u16string_view stop;
  // Each table is read only when every one before it was.
  (void)(ReadTable(*this, u"t_FamSem", famSem, stop) &&
         ReadTable(*this, u"t_CatGram", catGram, stop) &&
         ReadTable(*this, u"t_GrammarPoint_Category", grammarPointCategories, stop) &&
         ReadTable(*this, u"t_Verb_Tense", verbTenses, stop) &&
         ReadTable(*this, u"t_Expression_SyntacticFunction", syntacticFunctions, stop));
  return stop;
}

// The five tables replace the old ones in one commit, or none does.
bool Classification::save() {
  try {
    FolderCommit commit(folder);
    StageSetTable(commit, u"t_FamSem", formatVersion, famSem);
    StageSetTable(commit, u"t_CatGram", formatVersion, catGram);
    StageSetTable(commit, u"t_GrammarPoint_Category", formatVersion, grammarPointCategories);
    StageSetTable(commit, u"t_Verb_Tense", formatVersion, verbTenses);
    StageSetTable(commit, u"t_Expression_SyntacticFunction", formatVersion, syntacticFunctions);
    return CommitSaved(commit);
  } catch (const std::exception& error) {
    WriteStatus::Failure(folder, error.what());
    return false;
  }
}

}  // namespace lumora
