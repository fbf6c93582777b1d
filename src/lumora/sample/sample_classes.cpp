#include <lumora/sample/sample_classes.h>

#include <lumora/lexicon/classification.h>
#include <lumora/support/paths.h>

#include <cstdint>

#include <lumora/sample/sample_dates.h>

namespace lumora::sample {
namespace {

struct Label {
  uint32_t id;
  const char16_t* label;
  uint16_t value;
};

// Categories with their label in every interface language, in stored order: English (UK),
// French, German, Spanish, Italian, Dutch, English (US), Chinese, Japanese. The first stored
// entry, which no language chooses, keeps the neutral label.
struct Category {
  Label base;
  const char16_t* labels[kCatGramLanguages - 1];
};

// Hierarchical numbers: blocks of 10000 for the top level, 100 for the second, leaves between.
constexpr Label kFamilies[] = {
    {10000, u"Food and drink", 1}, {10100, u"Café and bakery", 2}, {10101, u"Crêpes", 3},
    {10200, u"Drinks", 4},         {20000, u"Travel", 5},          {20100, u"Transport", 6},
    {20200, u"Lodging", 7},        {30000, u"Family", 8},
};

constexpr Category kCategories[] = {
    {{10000, u"Noun", 1},
     {u"Noun", u"Nom", u"Substantiv", u"Sustantivo", u"Nome", u"Zelfstandig naamwoord", u"Noun",
      u"名词", u"名詞"}},
    {{10100, u"Common noun", 2},
     {u"Common noun", u"Nom commun", u"Gattungsname", u"Nombre común", u"Nome comune", u"Soortnaam",
      u"Common noun", u"普通名词", u"普通名詞"}},
    {{10200, u"Proper noun", 3},
     {u"Proper noun", u"Nom propre", u"Eigenname", u"Nombre propio", u"Nome proprio", u"Eigennaam",
      u"Proper noun", u"专有名词", u"固有名詞"}},
    {{20000, u"Verb", 4},
     {u"Verb", u"Verbe", u"Verb", u"Verbo", u"Verbo", u"Werkwoord", u"Verb", u"动词", u"動詞"}},
    {{20100, u"Transitive verb", 5},
     {u"Transitive verb", u"Verbe transitif", u"Transitives Verb", u"Verbo transitivo",
      u"Verbo transitivo", u"Overgankelijk werkwoord", u"Transitive verb", u"及物动词", u"他動詞"}},
    {{20101, u"Phrasal verb", 6},
     {u"Phrasal verb", u"Verbe à particule", u"Partikelverb", u"Verbo frasal", u"Verbo frasale",
      u"Scheidbaar werkwoord", u"Phrasal verb", u"短语动词", u"句動詞"}},
    {{20200, u"Intransitive verb", 7},
     {u"Intransitive verb", u"Verbe intransitif", u"Intransitives Verb", u"Verbo intransitivo",
      u"Verbo intransitivo", u"Onovergankelijk werkwoord", u"Intransitive verb", u"不及物动词",
      u"自動詞"}},
    {{30000, u"Adjective", 8},
     {u"Adjective", u"Adjectif", u"Adjektiv", u"Adjetivo", u"Aggettivo", u"Bijvoeglijk naamwoord",
      u"Adjective", u"形容词", u"形容詞"}},
    {{40000, u"Adverb", 9},
     {u"Adverb", u"Adverbe", u"Adverb", u"Adverbio", u"Avverbio", u"Bijwoord", u"Adverb", u"副词",
      u"副詞"}},
};

// Numbered like the grammar's subpoint categories divided by 10000: a category of the grammar
// and its subcategories.
constexpr Label kGrammarPointCategories[] = {{100, u"Articles and questions", 1},
                                             {101, u"Definite article", 2},
                                             {102, u"Indefinite article", 3},
                                             {103, u"Questions", 4},
                                             {200, u"Verbs", 5},
                                             {201, u"Regular verbs", 6},
                                             {202, u"Irregular verbs", 7},
                                             {300, u"Pronouns", 8},
                                             {400, u"Word order", 9}};

constexpr Label kVerbTenses[] = {{1, u"Present", 1},
                                 {2, u"Past simple", 2},
                                 {3, u"Present perfect", 3},
                                 {4, u"Future", 4},
                                 {5, u"Conditional", 5}};

constexpr Label kSyntacticFunctions[] = {{1, u"Subject", 1},
                                         {2, u"Direct object", 2},
                                         {3, u"Indirect object", 3},
                                         {4, u"Adverbial", 4},
                                         {5, u"Attribute", 5}};

template <typename Record, size_t N>
void Fill(SetTable<Record>& table, const Label (&labels)[N]) {
  for (const Label& l : labels) {
    Record record;
    record.id = static_cast<decltype(record.id)>(l.id);
    record.label = l.label;
    record.value = l.value;
    table.Insert(std::move(record));
  }
}

void FillCategories(SetTable<CatGramRecord>& table) {
  for (const Category& c : kCategories) {
    CatGramRecord record;
    record.id = c.base.id;
    record.label = c.base.label;
    record.value = c.base.value;
    record.labels[0] = c.base.label;
    for (size_t i = 1; i < kCatGramLanguages; ++i) record.labels[i] = c.labels[i - 1];
    table.Insert(std::move(record));
  }
}

}  // namespace

bool WriteSampleClassification(const std::string& common_local, std::string* error) {
  Classification classification;
  classification.SetFolder(common_local + "Classes");
  if (!CreateFolderPath(classification.folder)) {
    *error = "cannot create folder " + classification.folder;
    return false;
  }
  Fill(classification.famSem, kFamilies);
  FillCategories(classification.catGram);
  Fill(classification.grammarPointCategories, kGrammarPointCategories);
  Fill(classification.verbTenses, kVerbTenses);
  Fill(classification.syntacticFunctions, kSyntacticFunctions);
  if (!classification.save()) {
    *error = "cannot write the classification into " + classification.folder;
    return false;
  }
  return PinListedDates(classification.folder, error);
}

}  // namespace lumora::sample
