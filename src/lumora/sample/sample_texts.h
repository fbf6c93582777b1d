// Turns the sample's phrases into the text objects that the exercise types store, all in the
// course's Western code page.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>

#include <string_view>

#include <lumora/sample/sample_phrases.h>

namespace lumora::sample {

CodePageText PlainText(std::u16string_view text);
void SetMarked(MarkedText& marked, std::u16string_view text);
void AddText(TextList& list, std::u16string_view text);
// The narrow form a string list stores.
void AddString(StringArray& strings, std::u16string_view text);
// The phrase's English and French translations.
void SetTranslations(LanguageTexts& translations, const Phrase& phrase);

}  // namespace lumora::sample
