// What `lumora glossary` prints for each of its subcommands, as JSON or as compact text.
#pragma once

#include <lumora/lumora.h>

#include <cstdint>
#include <string>

namespace lumora::cli {

struct GlossaryOptions {
  std::string root;
  uint32_t discipline = 0;
  bool json = false;
  std::string query;  // find
  bool prefix = false;
  bool needCode = false;
  uint32_t fnId = 0;  // word
  std::string pathKind = "local";
  uint32_t quality = 1;
  uint32_t letter = 0;  // by-letter filters
  std::string levels;   // MIN or MIN:MAX
  uint32_t classId = 0;
  std::string linked;  // FIRST or FIRST,SECOND
};

// The texts of --level and --linked: "MIN" is MIN and above, "MIN:MAX" as given (levels 0 to
// 255); "FIRST" or "FIRST,SECOND" (SECOND 0 when absent). Anything else is a CommandFailure.
void ParseLevels(const std::string& text, uint8_t& min_level, uint8_t& max_level);
void ParseLinked(const std::string& text, uint32_t& first, uint32_t& second);

// The entries whose written form contains the query (accents and case ignored), by letter.
void PrintFoundWords(const CGloV6& glossary, const GlossaryOptions& options);
// The entries that pass the filters, by letter.
void PrintWordsByLetter(const CGloV6& glossary, const GlossaryOptions& options);
// Every letter section with its number.
void PrintLetters(const CGloV6& glossary, const GlossaryOptions& options);
// One word with everything the glossary holds about it; a CommandFailure when there is none.
void PrintGlossaryWord(const CGloV6& glossary, const GlossaryOptions& options);

}  // namespace lumora::cli
