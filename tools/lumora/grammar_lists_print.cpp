// Grammar point lists, as text or JSON: found points, levels and categories.
#include <lumora/descriptions.h>
#include <lumora/maintenance.h>

#include <iostream>

#include "grammar_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

template <typename T>
std::string NumberList(const std::vector<T>& values) {
  std::string text;
  for (T v : values) {
    if (!text.empty()) text.push_back(' ');
    text.append(std::to_string(v));
  }
  return text;
}

}  // namespace

void PrintFoundPoints(const CGramV6& grammar, const GrammarOptions& options) {
  const auto language = static_cast<uint8_t>(options.language);
  std::vector<uint32_t> points;
  grammar.findPoints(points, 0, Utf8ToUtf16(options.query), 0, language);
  const Description found = DescribeFoundPoints(grammar, points, language);
  if (options.json) {
    PrintJson(found);
    return;
  }
  for (const Description& f : found) {
    std::cout << f["point"] << "  " << f["title"].get<std::string>() << '\n';
  }
}

void PrintGrammarLevels(const CGramV6& grammar, const GrammarOptions& options) {
  const Description rows = DescribeGrammarLevels(grammar, options.first, options.second);
  if (options.json) {
    PrintJson(rows);
    return;
  }
  for (const Description& row : rows) {
    std::cout << "level " << row["level"] << ": "
              << NumberList(row["points"].get<std::vector<uint16_t>>()) << '\n';
  }
}

void PrintGrammarCategories(const CGramV6& grammar, const GrammarOptions& options) {
  const Description rows = DescribeGrammarCategories(grammar, options.first, options.second);
  if (options.json) {
    PrintJson(rows);
    return;
  }
  for (const Description& row : rows) {
    std::cout << "category " << row["category"] << '\n';
    for (const Description& sub : row["subcategories"]) {
      std::cout << "  " << sub["subcategory"] << ": "
                << NumberList(sub["points"].get<std::vector<uint16_t>>()) << '\n';
    }
  }
}

}  // namespace lumora::cli
