#include <lumora/lexicon/classification.h>
#include <lumora/platform/codepage.h>
#include <lumora/support/language_table.h>

#include <optional>

namespace lumora {
namespace {

constexpr uint32_t kWesternCodePage = 1252;

template <typename Record>
bool SetLabels(const SetTable<Record>& table, ClassLabelMap& labels) {
  for (const Record& record : table) {
    labels[record.id] = EncodeCodePage(record.label, kWesternCodePage);
  }
  return true;
}

template <typename Record>
uint16_t ValueOf(const SetTable<Record>& table, uint32_t id) {
  using Id = decltype(Record::id);
  if (id > static_cast<Id>(~Id{0})) return 0;
  const Record* record = table.Find(static_cast<Id>(id));
  return record ? record->value : 0;
}

// Which entry of a category's labels belongs to `language`. The codes are compared in this
// order, so should two codes ever share a number the first one wins.
std::optional<size_t> CatGramLabelEntry(uint32_t language) {
  struct Entry {
    const char* code;
    size_t entry;
  };
  static constexpr Entry kEntries[] = {{"ALL", 3}, {"AME", 7}, {"ANG", 1}, {"DUT", 6}, {"ESP", 4},
                                       {"FRA", 2}, {"ITA", 5}, {"CHS", 8}, {"JPN", 9}};
  for (const Entry& e : kEntries) {
    if (language == NumberOfCode(e.code)) return e.entry;
  }
  return std::nullopt;
}

}  // namespace

std::string Classification::getErrors() const {
  std::string joined;
  for (size_t i = 0; i < errors.size(); ++i) {
    if (i > 0) joined += '\n';
    joined += errors[i];
  }
  return joined;
}

bool Classification::getFamSemLabels(ClassLabelMap& labels) const {
  return SetLabels(famSem, labels);
}

bool Classification::getCatGramLabels(ClassLabelMap& labels) const {
  return SetLabels(catGram, labels);
}

std::u16string Classification::getCatGramLabel(uint32_t language, uint32_t id) const {
  const CatGramRecord* record = catGram.Find(id);
  if (record == nullptr) return {};
  const std::optional<size_t> entry = CatGramLabelEntry(language);
  return entry ? record->labels[*entry].str() : std::u16string();
}

bool Classification::getSyntacticFunctionLabels(ClassLabelMap& labels, uint32_t) const {
  return SetLabels(syntacticFunctions, labels);
}

bool Classification::getVerbTenseLabels(ClassLabelMap& labels, uint32_t) const {
  return SetLabels(verbTenses, labels);
}

bool Classification::getGrammarPointCategoryLabels(ClassLabelMap& labels, uint32_t) const {
  return SetLabels(grammarPointCategories, labels);
}

uint16_t Classification::getCatGramValue(uint32_t id) const { return ValueOf(catGram, id); }

uint16_t Classification::getFamSemValue(uint32_t id) const { return ValueOf(famSem, id); }

uint16_t Classification::getSyntacticFunctionValue(uint32_t id) const {
  return ValueOf(syntacticFunctions, id);
}

uint16_t Classification::getVerbTenseValue(uint32_t id) const { return ValueOf(verbTenses, id); }

uint16_t Classification::getGrammarPointCategoryValue(uint32_t id) const {
  return ValueOf(grammarPointCategories, id);
}

void Classification::Clear() {
  errors.clear();
  famSem.Clear();
  catGram.Clear();
  grammarPointCategories.Clear();
  verbTenses.Clear();
  syntacticFunctions.Clear();
}

}  // namespace lumora
