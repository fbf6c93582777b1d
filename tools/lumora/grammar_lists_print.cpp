#include <lumora/platform/utf8.h>

#include <nlohmann/json.hpp>

#include <iostream>

#include "grammar_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

using Json = nlohmann::ordered_json;

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
  Json found = Json::array();
  for (uint32_t point : points) {
    std::u16string title;
    grammar.getTitle(static_cast<uint16_t>(point), language, title);
    found.push_back({{"point", point}, {"title", Utf16ToUtf8(title)}});
  }
  if (options.json) {
    PrintJson(found);
    return;
  }
  for (const Json& f : found) {
    std::cout << f["point"] << "  " << f["title"].get<std::string>() << '\n';
  }
}

void PrintGrammarLevels(const CGramV6& grammar, const GrammarOptions& options) {
  std::vector<uint8_t> levels;
  grammar.getSubpointLevels(levels, options.first, options.second);
  Json rows = Json::array();
  for (uint8_t level : levels) {
    std::vector<uint16_t> points;
    grammar.getPointsByLevel(points, level, level, options.first, options.second);
    rows.push_back({{"level", level}, {"points", points}});
    if (!options.json) std::cout << "level " << int{level} << ": " << NumberList(points) << '\n';
  }
  if (options.json) PrintJson(rows);
}

void PrintGrammarCategories(const CGramV6& grammar, const GrammarOptions& options) {
  std::vector<uint32_t> categories;
  grammar.getCategories(categories, options.first, options.second);
  Json rows = Json::array();
  for (uint32_t category : categories) {
    if (!options.json) std::cout << "category " << category << '\n';
    std::vector<uint32_t> subcategories;
    grammar.getSubcategories(category, subcategories, options.first, options.second);
    Json subs = Json::array();
    for (uint32_t sub : subcategories) {
      std::vector<uint16_t> points;
      grammar.getPointsOfSubcategory(sub, points, options.first, options.second);
      subs.push_back({{"subcategory", sub}, {"points", points}});
      if (!options.json) std::cout << "  " << sub << ": " << NumberList(points) << '\n';
    }
    rows.push_back({{"category", category}, {"subcategories", subs}});
  }
  if (options.json) PrintJson(rows);
}

}  // namespace lumora::cli
