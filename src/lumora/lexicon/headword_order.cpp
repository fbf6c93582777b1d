#include <lumora/lexicon/headword_order.h>

#include <lumora/lexicon/headword_prefixes.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/notify.h>
#include <lumora/support/accent_table.h>
#include <lumora/support/language_table.h>

#include <algorithm>
#include <array>

namespace lumora {
namespace {

// Digits count as punctuation: "3 bis" sorts under "bis". Every one is ASCII.
constexpr std::u16string_view kPunctuation = u".,;:!?\"_-#$%&*+/0123456789<>=@[]\\^|~";

constexpr std::array<bool, 128> kIsPunctuation = [] {
  std::array<bool, 128> table{};
  for (char16_t unit : kPunctuation) table[unit] = true;
  return table;
}();

void TrimBlanks(std::u16string& text) {
  const size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string::npos) {
    text.clear();
    return;
  }
  text.erase(text.find_last_not_of(u' ') + 1);
  text.erase(0, first);
}

void TrimLeadingBlanks(std::u16string& text) {
  text.erase(0, std::min(text.find_first_not_of(u' '), text.size()));
}

void ReportParenthesisError(const std::u16string& text, uint8_t language) {
  Notify(EncodeCodePage(text, CodePageOf(language)) + " : Parenthesis Error !");
}

// Takes out the parenthesised parts one by one. True when the whole text was one parenthesised
// part: then only its opening parenthesis goes and the text is final as it stands.
bool DropParentheses(std::u16string& text, uint8_t language) {
  for (size_t open = text.find(u'('); open != std::u16string::npos; open = text.find(u'(')) {
    const size_t close = text.find(u')');
    if (close == std::u16string::npos || close < open) {
      ReportParenthesisError(text, language);
      return false;
    }
    if (open == 0 && close == text.size() - 1) {
      text.erase(0, 1);
      TrimLeadingBlanks(text);
      return true;
    }
    // The parenthesised part becomes one blank: its "(" turns blank, the rest through ")" goes.
    text[open] = u' ';
    text.erase(open + 1, close - open);
    TrimBlanks(text);
  }
  return false;
}

void DropPrefix(std::u16string& text, uint8_t language) {
  for (std::u16string_view prefix : HeadwordPrefixes(language)) {
    if (text.size() > prefix.size() && std::u16string_view(text).starts_with(prefix)) {
      text.erase(0, prefix.size());
      return;
    }
  }
}

}  // namespace

std::u16string sortKey(std::u16string_view writing, uint8_t language) {
  std::u16string text(writing);
  for (char16_t& unit : text) {
    if (unit < kIsPunctuation.size() && kIsPunctuation[unit]) unit = u' ';
  }
  TrimBlanks(text);
  if (DropParentheses(text, language)) return text;
  DropPrefix(text, language);
  TrimLeadingBlanks(text);
  return text;
}

uint8_t firstLetter(std::u16string_view writing, uint8_t language) {
  return LetterOfKey(sortKey(writing, language));
}

uint8_t LetterOfKey(std::u16string_view key) {
  if (key.empty()) return 0;
  const char16_t first = key.front() < 256 ? AccentTable::UpperPlain(key.front()) : key.front();
  return static_cast<uint8_t>(first & 0xFF);
}

}  // namespace lumora
