#include <lumora/describe/grammar_description.h>
#include <lumora/descriptions.h>
#include <lumora/platform/utf8.h>

namespace lumora {
namespace {

std::string Text(std::u16string_view text) { return Utf16ToUtf8(text); }

Description TitlesDescription(const CGramV6& g, uint16_t point) {
  Description titles = Description::array();
  for (auto it = g.titles.Range({point, 0}, {point, 0}).first;
       it != g.titles.end() && it->pointId == point; ++it) {
    titles.push_back({{"language", it->language}, {"title", Text(it->title)}});
  }
  return titles;
}

Description PicturesDescription(const CGramV6& g, uint16_t point) {
  Description pictures = Description::array();
  for (auto it = g.pictures.Range({point, 0}, {point, 0}).first;
       it != g.pictures.end() && it->pointId == point; ++it) {
    pictures.push_back({{"number", it->attrA}, {"attrB", it->attrB}});
  }
  return pictures;
}

Description SubpointDescription(const CGramV6& g, const GrSubpointsRecord& s) {
  Description titles = Description::array();
  for (auto it = g.subpointTitles.Range({s.subpointId, 0}, {s.subpointId, 0}).first;
       it != g.subpointTitles.end() && it->subpointId == s.subpointId; ++it) {
    titles.push_back({{"language", it->language}, {"title", Text(it->title)}});
  }
  Description keywords = Description::array();
  const uint64_t first = uint64_t{s.subpointId} * 100;
  auto it = first > UINT32_MAX ? g.keywords.end()
                               : g.keywords.Range(uint32_t(first), uint32_t(first)).first;
  for (; it != g.keywords.end() && it->keywordId / 100 == s.subpointId; ++it) {
    keywords.push_back({{"id", it->keywordId}, {"keyword", Text(it->keyword)}});
  }
  return {{"id", s.subpointId},
          {"level", s.level},
          {"category", s.categoryCode},
          {"titles", titles},
          {"keywords", keywords}};
}

Description PointDescription(const CGramV6& g, const GrPointsRecord& p) {
  Description subpoints = Description::array();
  const uint32_t first = uint32_t{p.pointId} * 1000;
  for (auto it = g.subpoints.Range(first, first + 1000).first;
       it != g.subpoints.end() && it->subpointId / 1000 == p.pointId; ++it) {
    subpoints.push_back(SubpointDescription(g, *it));
  }
  Description bubbles = Description::array();
  for (const GrBubblesRecord& b : g.bubbles) {
    if (b.pointId != p.pointId) continue;
    bubbles.push_back(
        {{"language", b.language}, {"attrB", b.attrB}, {"attrC", b.attrC}, {"text", Text(b.text)}});
  }
  return {{"point", p.pointId},
          {"attrA", p.attrA},
          {"flag", p.flag},
          {"name", Text(p.name)},
          {"titles", TitlesDescription(g, p.pointId)},
          {"pictures", PicturesDescription(g, p.pointId)},
          {"subpoints", subpoints},
          {"bubbles", bubbles}};
}

}  // namespace

Description DescribeGrammarPoint(const CGramV6& grammar, uint32_t point) {
  const GrPointsRecord* record =
      point <= 0xFFFF ? grammar.points.Find(static_cast<uint16_t>(point)) : nullptr;
  return record ? PointDescription(grammar, *record) : Description(nullptr);
}

Description DescribeFoundPoints(const CGramV6& grammar, const std::vector<uint32_t>& points,
                                uint8_t language) {
  Description found = Description::array();
  for (uint32_t point : points) {
    std::u16string title;
    grammar.getTitle(static_cast<uint16_t>(point), language, title);
    found.push_back({{"point", point}, {"title", Utf16ToUtf8(title)}});
  }
  return found;
}

Description DescribeGrammarLevels(const CGramV6& grammar, uint32_t first, uint32_t second) {
  std::vector<uint8_t> levels;
  grammar.getSubpointLevels(levels, first, second);
  Description rows = Description::array();
  for (uint8_t level : levels) {
    std::vector<uint16_t> points;
    grammar.getPointsByLevel(points, level, level, first, second);
    rows.push_back({{"level", level}, {"points", points}});
  }
  return rows;
}

Description DescribeGrammarCategories(const CGramV6& grammar, uint32_t first, uint32_t second) {
  std::vector<uint32_t> categories;
  grammar.getCategories(categories, first, second);
  Description rows = Description::array();
  for (uint32_t category : categories) {
    std::vector<uint32_t> subcategories;
    grammar.getSubcategories(category, subcategories, first, second);
    Description subs = Description::array();
    for (uint32_t sub : subcategories) {
      std::vector<uint16_t> points;
      grammar.getPointsOfSubcategory(sub, points, first, second);
      subs.push_back({{"subcategory", sub}, {"points", points}});
    }
    rows.push_back({{"category", category}, {"subcategories", subs}});
  }
  return rows;
}

}  // namespace lumora
