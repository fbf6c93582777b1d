#include <lumora/sample/sample_texts.h>

#include <memory>

namespace lumora::sample {

CodePageText PlainText(std::u16string_view text) {
  return CodePageText(kWesternCodePage, WideText(text));
}

void SetMarked(MarkedText& marked, std::u16string_view text) {
  marked.codePage = kWesternCodePage;
  marked.text = WideText(text);
}

void AddText(TextList& list, std::u16string_view text) { SetMarked(list.AddNew(), text); }

void AddString(StringArray& strings, std::u16string_view text) {
  strings.items.push_back(WideText(text).ToNarrow(kWesternCodePage));
}

void SetTranslations(LanguageTexts& translations, const Phrase& phrase) {
  translations.Add(kEnglish, PlainText(phrase.english));
  translations.Add(kFrench, PlainText(phrase.french));
}

}  // namespace lumora::sample
