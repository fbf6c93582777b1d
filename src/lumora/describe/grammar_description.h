// Descriptions of a discipline's grammar: what `lumora grammar ... --json` prints.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/lexicon/grammar.h>

#include <cstdint>
#include <vector>

namespace lumora {

// One point with its titles, pictures, subpoints (level, category, titles, keywords) and
// bubbles. Null when the grammar has no point `point`.
Description DescribeGrammarPoint(const CGramV6& grammar, uint32_t point);

// Points with their titles in `language`: [{"point", "title"}].
Description DescribeFoundPoints(const CGramV6& grammar, const std::vector<uint32_t>& points,
                                uint8_t language);

// Each level of the first subpoints with the points at that level: [{"level", "points"}]. first
// and second filter by link, as the grammar's own queries do (0: no filter).
Description DescribeGrammarLevels(const CGramV6& grammar, uint32_t first, uint32_t second);

// Each category with its subcategories and their points:
// [{"category", "subcategories": [{"subcategory", "points"}]}].
Description DescribeGrammarCategories(const CGramV6& grammar, uint32_t first, uint32_t second);

}  // namespace lumora
