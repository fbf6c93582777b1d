// Word and text exercises: each resource builds on one sentence or a few words of the phrase
// lists, so that the same number shows related content across the types.
#include <lumora/resources/types/type1.h>
#include <lumora/resources/types/type16.h>
#include <lumora/resources/types/type17.h>
#include <lumora/resources/types/type18.h>
#include <lumora/resources/types/type2.h>
#include <lumora/resources/types/type3.h>
#include <lumora/resources/types/type4.h>
#include <lumora/resources/types/type7.h>

#include <algorithm>
#include <string_view>

#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_texts.h>
#include <lumora/sample/sample_type_files.h>

namespace lumora::sample {
namespace {

constexpr uint32_t kPerType = 2;
constexpr uint32_t kWordsPerResource = 3;

uint8_t GroupKeyOf(uint32_t number) { return static_cast<uint8_t>(number); }

// Word Association: words in the first list, their English meanings in the second.
void BuildType1(Type1Resource& r, uint32_t n) {
  r.value = n;
  r.groupKey = GroupKeyOf(n);
  for (uint32_t w = 0; w < kWordsPerResource; ++w) {
    const Phrase& word = WordAt(n * kWordsPerResource + w);
    AddText(r.firstTexts, word.text);
    AddText(r.secondTexts, word.english);
  }
}

// Word Order: a sentence and its words, which the learner puts back in order.
void BuildType2(Type2Resource& r, uint32_t n) {
  r.groupKey = GroupKeyOf(n);
  const std::u16string_view sentence = SentenceAt(n).text;
  SetMarked(r.sentence, sentence);
  size_t start = 0;
  while (start < sentence.size()) {
    const size_t end = std::min(sentence.find(u' ', start), sentence.size());
    AddString(r.words, sentence.substr(start, end - start));
    start = end + 1;
  }
}

constexpr std::u16string_view kBlanks[][2] = {
    {u"Me llamo ____ y vivo en Sevilla.", u"¿Dónde está la ____ de tren?"},
    {u"El ____ de la esquina abre a las ocho.", u"Quisiera un ____ de ida y vuelta."},
};

// Fill-in-the-Blanks: sentences with a word left out.
void BuildType3(Type3Resource& r, uint32_t n) {
  r.groupKey = GroupKeyOf(n);
  for (std::u16string_view text : kBlanks[n - 1]) AddText(r.texts, text);
}

// Mysterious Phrase: an English hint, the sentence to guess and its translation.
void BuildType4(Type4Resource& r, uint32_t n) {
  r.groupKey = GroupKeyOf(n);
  const Phrase& sentence = SentenceAt(n + 2);
  r.plainText = PlainText(u"Guess the sentence");
  SetMarked(r.firstText, sentence.text);
  SetMarked(r.secondText, sentence.english);
}

// The Right Word: a sentence with a gap, the words to choose from and the right one.
void BuildType7(Type7Resource& r, uint32_t n) {
  r.groupKey = GroupKeyOf(n);
  SetMarked(r.text, kBlanks[n - 1][0]);
  for (uint32_t w = 0; w < kWordsPerResource; ++w) AddText(r.choices, WordAt(n + w).text);
  AddString(r.words, WordAt(n).text);
}

// Grammatical Nature: one word whose nature the learner names.
void BuildType16(Type16Resource& r, uint32_t n) {
  r.value = n;
  r.groupKey = GroupKeyOf(n);
  SetMarked(r.text, WordAt(n + 5).text);
}

// Cultural Card: two lists of entries, each naming a few elements by number.
void BuildType17(Type17Resource& r, uint32_t n) {
  r.groupKey = GroupKeyOf(n);
  for (auto* items : {&r.firstItems, &r.secondItems}) {
    Type17Item& item = items->AddNew();
    item.value = n;
    for (uint32_t e = 1; e <= kWordsPerResource; ++e) item.numbers.Add(e);
  }
}

void BuildType18(Type18Resource& r, uint32_t n) {
  r.groupKey = GroupKeyOf(n);
  r.value = 100 * n;
}

}  // namespace

bool WriteTextTypes(const std::string& root, std::string* error) {
  return StoreNumbered<Type1Resource>(root, kPerType, BuildType1, error) &&
         StoreNumbered<Type2Resource>(root, kPerType, BuildType2, error) &&
         StoreNumbered<Type3Resource>(root, kPerType, BuildType3, error) &&
         StoreNumbered<Type4Resource>(root, kPerType, BuildType4, error) &&
         StoreNumbered<Type7Resource>(root, kPerType, BuildType7, error) &&
         StoreNumbered<Type16Resource>(root, kPerType, BuildType16, error) &&
         StoreNumbered<Type17Resource>(root, kPerType, BuildType17, error) &&
         StoreNumbered<Type18Resource>(root, kPerType, BuildType18, error);
}

}  // namespace lumora::sample
