// The 66 languages a content text can be tagged with, by one-byte language number: English
// name, three-letter code, Windows character set, reading direction, ANSI code page (used to
// make texts narrow) and language identifier (used for locale-aware comparison).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lumora {

struct LanguageInfo {
  char name[17];
  char code[4];
  uint8_t charset;
  uint8_t leftToRight;  // 0 for right-to-left scripts
  uint16_t codePage;
  uint16_t langId;  // 0 where the language has none
};

inline constexpr size_t kLanguageCount = 66;

// Numbers 66 and above are not languages; they answer row 0 ("Undefined", code page 1252) so
// that a damaged language byte still gives a usable code page.
const LanguageInfo& LanguageRow(unsigned number);
uint16_t CodePageOf(unsigned number);
uint16_t LangIdOf(unsigned number);

// The number of the first language (from 1) whose code equals the first three characters of
// text in upper case; 0 when none does.
uint8_t NumberOfCode(std::string_view text);

}  // namespace lumora
