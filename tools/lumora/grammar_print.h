// What `lumora grammar` prints for each of its subcommands, as JSON or as compact text.
#pragma once

#include <lumora/lumora.h>

#include <cstdint>
#include <string>

namespace lumora::cli {

struct GrammarOptions {
  std::string root;
  uint32_t discipline = 0;
  bool json = false;
  uint32_t point = 0;
  std::string query;
  uint32_t language = 0;
  uint32_t first = 0;  // link filters of levels and categories
  uint32_t second = 0;
};

// One point with its titles, pictures, subpoints (levels, categories, titles, keywords) and
// bubbles; a CommandFailure when the grammar has no such point.
void PrintGrammarPoint(const CGramV6& grammar, const GrammarOptions& options);
// The points whose texts contain the query, with their titles in the query's language.
void PrintFoundPoints(const CGramV6& grammar, const GrammarOptions& options);
// Each level of the first subpoints with the points at that level.
void PrintGrammarLevels(const CGramV6& grammar, const GrammarOptions& options);
// Each category with its subcategories and their points.
void PrintGrammarCategories(const CGramV6& grammar, const GrammarOptions& options);

}  // namespace lumora::cli
