// The classification's five set files: read and written in one fixed order, each under its
// table's name in the classification's folder.
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

template <typename Record>
LoadResult ReadClassTable(const Classification& owner, std::u16string_view name,
                          SetTable<Record>& table) {
  uint32_t version = 0;
  LoadResult result = LoadSetTable(owner.folder, name, SetFamily::kClassification, table, &version);
  if (result.ok() && version != owner.formatVersion) {
    return LoadResult({SetFilePath(owner.folder, name), 0,
                       "version " + std::to_string(version) +
                           " is not the classification's format version " +
                           std::to_string(owner.formatVersion)});
  }
  return result;
}

}  // namespace

void Classification::SetFolder(const std::string& folder_path) {
  folder = WithBackslash(folder_path);
}

LoadResult Classification::LoadWithReason(const std::string& folder_path) {
  SetFolder(folder_path);
  FolderReadScope scope(folder);
  LoadResult result;
  auto read = [&](std::u16string_view name, auto& table) {
    result = ReadClassTable(*this, name, table);
    return result.ok();
  };
  read(u"t_FamSem", famSem) && read(u"t_CatGram", catGram) &&
      read(u"t_GrammarPoint_Category", grammarPointCategories) &&
      read(u"t_Verb_Tense", verbTenses) &&
      read(u"t_Expression_SyntacticFunction", syntacticFunctions);
  return result;
}

bool Classification::load(const std::string& folder_path) {
  return LoadWithReason(folder_path).ok();
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
