// The classification's five set files: read and written in one fixed order, each under its
// table's name in the classification's folder.
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

template <typename Record>
bool ReadTable(const Classification& owner, std::u16string_view name, SetTable<Record>& table) {
  uint32_t version = 0;
  return ReadSetTable(owner.folder, name, SetFamily::kClassification, table, &version) &&
         version == owner.formatVersion;
}

template <typename Record>
bool WriteTable(const Classification& owner, std::u16string_view name, SetTable<Record>& table) {
  const uint32_t version = owner.formatVersion;
  return WriteSetFile(SetFilePath(owner.folder, name), version,
                      [&table, version](Archive& ar) { table.WriteRecords(ar, version); });
}

}  // namespace

void Classification::SetFolder(const std::string& folder_path) {
  folder = WithBackslash(folder_path);
}

bool Classification::load(const std::string& folder_path) {
  SetFolder(folder_path);
  return ReadTable(*this, u"t_FamSem", famSem) && ReadTable(*this, u"t_CatGram", catGram) &&
         ReadTable(*this, u"t_GrammarPoint_Category", grammarPointCategories) &&
         ReadTable(*this, u"t_Verb_Tense", verbTenses) &&
         ReadTable(*this, u"t_Expression_SyntacticFunction", syntacticFunctions);
}

// Unlike loading, a failed table does not stop the others: each one written is one fewer to
// redo.
bool Classification::save() {
  bool saved = WriteTable(*this, u"t_FamSem", famSem);
  saved = WriteTable(*this, u"t_CatGram", catGram) && saved;
  saved = WriteTable(*this, u"t_GrammarPoint_Category", grammarPointCategories) && saved;
  saved = WriteTable(*this, u"t_Verb_Tense", verbTenses) && saved;
  saved = WriteTable(*this, u"t_Expression_SyntacticFunction", syntacticFunctions) && saved;
  return saved;
}

}  // namespace lumora
