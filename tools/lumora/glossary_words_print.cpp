// Word lists by letter section: the text search, the filtered letter search and the letters.
#include <lumora/descriptions.h>
#include <lumora/maintenance.h>

#include <iostream>

#include "commands.h"
#include "content_args.h"
#include "glossary_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

// The letters with words, each with its words in alphabetical order.
void PrintBuckets(const CGloV6& glossary, const WordBuckets& buckets, bool json) {
  const Description rows = DescribeWordBuckets(glossary, buckets);
  if (json) {
    PrintJson(rows);
    return;
  }
  for (const Description& row : rows) {
    std::cout << row["letter"].get<std::string>() << '\n';
    for (const Description& word : row["words"]) {
      std::cout << "  " << word["fnId"] << "  " << word["writing"].get<std::string>() << '\n';
    }
  }
}

}  // namespace

void ParseLevels(const std::string& text, uint8_t& min_level, uint8_t& max_level) {
  if (text.empty()) return;
  const size_t colon = text.find(':');
  const uint32_t min = ParseNumber(text.substr(0, colon), "level");
  const uint32_t max =
      colon == std::string::npos ? 255 : ParseNumber(text.substr(colon + 1), "level");
  if (min > 255 || max > 255) throw CommandFailure("levels go from 0 to 255: " + text);
  min_level = static_cast<uint8_t>(min);
  max_level = static_cast<uint8_t>(max);
}

void ParseLinked(const std::string& text, uint32_t& first, uint32_t& second) {
  const size_t comma = text.find(',');
  first = ParseNumber(text.substr(0, comma), "linked word");
  second = comma == std::string::npos ? 0 : ParseNumber(text.substr(comma + 1), "linked word");
}

void PrintFoundWords(const CGloV6& glossary, const GlossaryOptions& options) {
  WordBuckets buckets;
  glossary.findWords(buckets, 0, Utf8ToUtf16(options.query), 0, options.needCode ? 1 : 0,
                     options.prefix);
  PrintBuckets(glossary, buckets, options.json);
}

void PrintWordsByLetter(const CGloV6& glossary, const GlossaryOptions& options) {
  uint8_t min_level = 0;
  uint8_t max_level = 0;
  ParseLevels(options.levels, min_level, max_level);
  if (options.letter > 0xFFFF) throw CommandFailure("no such letter section");
  const auto letterId = static_cast<uint16_t>(options.letter);
  const uint32_t need_code = options.needCode ? 1 : 0;
  WordBuckets buckets;
  if (options.linked.empty()) {
    glossary.getWordsByLetter(buckets, options.classId, need_code, min_level, max_level, letterId);
  } else {
    uint32_t first = 0;
    uint32_t second = 0;
    ParseLinked(options.linked, first, second);
    glossary.getLinkedWordsByLetter(buckets, first, second, options.classId, need_code, min_level,
                                    max_level, letterId);
  }
  PrintBuckets(glossary, buckets, options.json);
}

void PrintLetters(const CGloV6& glossary, const GlossaryOptions& options) {
  const Description rows = DescribeLetters(glossary);
  if (options.json) {
    PrintJson(rows);
    return;
  }
  for (const Description& letter : rows) {
    std::cout << letter["letterId"] << "  " << letter["letter"].get<std::string>() << '\n';
  }
}

}  // namespace lumora::cli
