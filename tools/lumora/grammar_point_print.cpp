#include <lumora/platform/utf8.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <iostream>

#include "commands.h"
#include "grammar_print.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

using Json = nlohmann::ordered_json;

std::string Text(std::u16string_view text) { return Utf16ToUtf8(text); }

Json TitlesJson(const CGramV6& g, uint16_t point) {
  Json titles = Json::array();
  for (auto it = g.titles.Range({point, 0}, {point, 0}).first;
       it != g.titles.end() && it->pointId == point; ++it) {
    titles.push_back({{"language", it->language}, {"title", Text(it->title)}});
  }
  return titles;
}

Json PicturesJson(const CGramV6& g, uint16_t point) {
  Json pictures = Json::array();
  for (auto it = g.pictures.Range({point, 0}, {point, 0}).first;
       it != g.pictures.end() && it->pointId == point; ++it) {
    pictures.push_back({{"number", it->attrA}, {"attrB", it->attrB}});
  }
  return pictures;
}

Json SubpointJson(const CGramV6& g, const GrSubpointsRecord& s) {
  Json titles = Json::array();
  for (auto it = g.subpointTitles.Range({s.subpointId, 0}, {s.subpointId, 0}).first;
       it != g.subpointTitles.end() && it->subpointId == s.subpointId; ++it) {
    titles.push_back({{"language", it->language}, {"title", Text(it->title)}});
  }
  Json keywords = Json::array();
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

Json PointJson(const CGramV6& g, const GrPointsRecord& p) {
  Json subpoints = Json::array();
  const uint32_t first = uint32_t{p.pointId} * 1000;
  for (auto it = g.subpoints.Range(first, first + 1000).first;
       it != g.subpoints.end() && it->subpointId / 1000 == p.pointId; ++it) {
    subpoints.push_back(SubpointJson(g, *it));
  }
  Json bubbles = Json::array();
  for (const GrBubblesRecord& b : g.bubbles) {
    if (b.pointId != p.pointId) continue;
    bubbles.push_back(
        {{"language", b.language}, {"attrB", b.attrB}, {"attrC", b.attrC}, {"text", Text(b.text)}});
  }
  return {{"point", p.pointId},
          {"attrA", p.attrA},
          {"flag", p.flag},
          {"name", Text(p.name)},
          {"titles", TitlesJson(g, p.pointId)},
          {"pictures", PicturesJson(g, p.pointId)},
          {"subpoints", subpoints},
          {"bubbles", bubbles}};
}

void PrintText(const Json& point) {
  std::cout << "point " << point["point"] << "  " << point["name"].get<std::string>() << "  (attrA "
            << point["attrA"] << ", flag " << point["flag"] << ")\n";
  for (const Json& t : point["titles"]) {
    std::cout << "  title [" << t["language"] << "] " << t["title"].get<std::string>() << '\n';
  }
  for (const Json& p : point["pictures"]) {
    std::cout << "  picture " << p["number"] << " -> " << p["attrB"] << '\n';
  }
  for (const Json& s : point["subpoints"]) {
    std::cout << "  subpoint " << s["id"] << "  level " << s["level"] << "  category "
              << s["category"] << '\n';
    for (const Json& t : s["titles"]) {
      std::cout << "    title [" << t["language"] << "] " << t["title"].get<std::string>() << '\n';
    }
    for (const Json& k : s["keywords"]) {
      std::cout << "    keyword " << k["id"] << "  " << k["keyword"].get<std::string>() << '\n';
    }
  }
  for (const Json& b : point["bubbles"]) {
    std::cout << "  bubble [" << b["language"] << "] " << b["attrB"] << '.' << b["attrC"] << "  "
              << b["text"].get<std::string>() << '\n';
  }
}

}  // namespace

void PrintGrammarPoint(const CGramV6& grammar, const GrammarOptions& options) {
  const GrPointsRecord* point =
      options.point <= 0xFFFF ? grammar.points.Find(static_cast<uint16_t>(options.point)) : nullptr;
  if (point == nullptr) throw CommandFailure("no grammar point " + std::to_string(options.point));
  const Json json = PointJson(grammar, *point);
  if (options.json) {
    PrintJson(json);
  } else {
    PrintText(json);
  }
}

}  // namespace lumora::cli
