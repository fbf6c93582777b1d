// Letter case and trimming for the configuration files the library reads. Only ASCII letters
// fold; every other byte must match exactly, which is all the section and key names need.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace lumora {

inline char FoldAsciiCase(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; }

// `text` with its ASCII letters in lower case.
inline std::string LowerAscii(std::string text) {
  for (char& c : text) c = FoldAsciiCase(c);
  return text;
}

inline bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return FoldAsciiCase(x) == FoldAsciiCase(y);
         });
}

inline bool StartsWithIgnoringCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

// `text` without any of `chars` at either end.
inline std::string_view TrimAny(std::string_view text, std::string_view chars) {
  size_t first = text.find_first_not_of(chars);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(chars) - first + 1);
}

}  // namespace lumora
