#include <lumora/describe/classification_description.h>
#include <lumora/describe/printable_text.h>
#include <lumora/descriptions.h>
#include <lumora/platform/utf8.h>
#include <lumora/support/language_table.h>

namespace lumora {
namespace {

// The languages that have a category label of their own, in the order the labels are stored.
constexpr const char* kLabelCodes[] = {"ANG", "FRA", "ALL", "ESP", "ITA",
                                       "DUT", "AME", "CHS", "JPN"};

template <typename Record>
Description RecordJson(const Record& record) {
  return {{"id", record.id}, {"label", Utf16ToUtf8(record.label)}, {"value", record.value}};
}

template <typename Record>
Description TableJson(const SetTable<Record>& table) {
  Description records = Description::array();
  for (const Record& record : table) records.push_back(RecordJson(record));
  return records;
}

Description CatGramJson(const Classification& classification) {
  Description records = Description::array();
  for (const CatGramRecord& record : classification.catGram) {
    Description labels = Description::object();
    for (const char* code : kLabelCodes) {
      labels[code] = Utf16ToUtf8(classification.getCatGramLabel(NumberOfCode(code), record.id));
    }
    Description json = RecordJson(record);
    json["labels"] = labels;
    records.push_back(json);
  }
  return records;
}

}  // namespace

Description DescribeClassification(const Classification& c) {
  return {{"folder", PrintableText(c.folder, kWindowsAnsi)},
          {"t_FamSem", TableJson(c.famSem)},
          {"t_CatGram", CatGramJson(c)},
          {"t_GrammarPoint_Category", TableJson(c.grammarPointCategories)},
          {"t_Verb_Tense", TableJson(c.verbTenses)},
          {"t_Expression_SyntacticFunction", TableJson(c.syntacticFunctions)}};
}

}  // namespace lumora
