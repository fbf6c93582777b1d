// The grammar of one discipline: points with their titles and pictures, subpoints with their
// titles, parts, keywords, links and the text bubbles of the grammar screens, each table in a
// set file of its own in the grammar folder. The discipline loads it when it opens; exports
// build reduced copies and save them.
#pragma once

#include <lumora/lexicon/grammar_base.h>
#include <lumora/lexicon/grammar_records.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class CGramV6 : public CGramBase {
 public:
  const char* ClassName() const override { return "CGramV6"; }

  // Sets `folder`, then reads the nine tables in file order; stops at the first that fails
  // (false), leaving the tables read before it loaded.
  bool load(const std::string& folder);
  // load, saying which table failed, where in its file and why.
  LoadResult LoadWithReason(const std::string& folder);
  // Sets `folder` only, with the separator appended unless empty or already there.
  void setFolder(const std::string& folder);
  // Writes the nine tables into `folder` in the same order; stops at the first that fails.
  bool save();

  bool getPointAttr(uint16_t pointId, uint8_t& attr) const override;
  bool countPictures(uint16_t pointId, uint8_t& count) const override;
  bool getPicture(uint16_t pointId, uint8_t pictureNumber, uint8_t& attr) const override;
  bool getSubpoint(uint32_t subpointId, GrSubpointsRecord& record) const override;
  bool getSubpointLevel(uint32_t subpointId, uint8_t& level) const override;
  bool getSubpointCategory(uint32_t subpointId, uint32_t& categoryCode) const override;
  bool getPart(uint32_t partId, uint8_t attrA, uint8_t attrB, GrPartsRecord& record) const override;
  // Records of `partId` whose attrB is `attrB`; false when the part has no records at all.
  bool countParts(uint32_t partId, uint8_t attrB, uint32_t& count) const override;
  bool getKeyword(uint32_t keywordId, std::u16string& keyword) const override;
  // Keywords numbered subpointId * 100 to subpointId * 100 + 99.
  bool countKeywords(uint32_t subpointId, uint32_t& count) const override;
  bool getTitle(uint16_t pointId, uint8_t language, std::u16string& title) const override;
  bool getSubpointTitle(uint32_t subpointId, uint8_t language,
                        std::u16string& title) const override;
  bool countBubbles(uint8_t language, uint16_t pointId, uint8_t attrB,
                    uint8_t& count) const override;
  bool getBubble(uint8_t language, uint16_t pointId, uint8_t attrB, uint8_t attrC,
                 std::u16string& text) const override;

  // The links from `fromId`, in key order; false when there are none.
  bool getLinks(uint32_t fromId, std::vector<GrLinksRecord>& found) const override;
  // The existing subpoints the links from `fromId` lead to (attrA / 100), ascending and
  // distinct; false when there are none.
  bool getLinkedSubpoints(uint32_t fromId, std::vector<uint32_t>& found) const override;

  // Searches over the subpoints. With firstId and secondId both 0 every subpoint counts;
  // otherwise only those reached by the links from either of them. Results are distinct and
  // ascending.
  //
  // Non-zero levels of first subpoints (number 1 in their point); false when there are no
  // subpoints.
  bool getSubpointLevels(std::vector<uint8_t>& levels, uint32_t firstId,
                         uint32_t secondId) const override;
  // Categories of the subpoints that have one; false when there are no subpoints.
  bool getCategories(std::vector<uint32_t>& categories, uint32_t firstId,
                     uint32_t secondId) const override;
  // The subcategory and point searches answer true even when they find nothing: an empty
  // result is an answer, not a failure.
  bool getSubcategories(uint32_t category, std::vector<uint32_t>& subcategories, uint32_t firstId,
                        uint32_t secondId) const override;
  // Points whose first subpoint has a level in [minLevel, maxLevel]; minLevel 0 takes every
  // level, and a maxLevel below minLevel counts as minLevel.
  bool getPointsByLevel(std::vector<uint16_t>& pointIds, uint8_t minLevel, uint8_t maxLevel,
                        uint32_t firstId, uint32_t secondId) const override;
  bool getPointsOfSubcategory(uint32_t subcategory, std::vector<uint16_t>& pointIds,
                              uint32_t firstId, uint32_t secondId) const override;

  // The languages of the point titles, ascending; false when there are no titles.
  bool getTitleLanguages(std::vector<uint8_t>& languages) const override;
  bool hasTitleLanguage(uint8_t language) const override;
  // The points whose title, subpoint title or bubble in `language`, or whose keyword in any
  // language, contains `query` (exact code units), ascending and each once; false when all
  // four tables are empty. The two numbers are not used.
  bool findPoints(std::vector<uint32_t>& pointIds, uint32_t, const std::u16string& query, uint32_t,
                  uint8_t language) const override;

  SetTable<GrPointsRecord> points;
  SetTable<GrTitlesRecord> titles;
  SetTable<GrPicturesRecord> pictures;
  SetTable<GrSubpointsRecord> subpoints;
  SetTable<GrPartsRecord> parts;
  SetTable<GrSubpointTitlesRecord> subpointTitles;
  SetTable<GrKeywordsRecord> keywords;
  SetTable<GrLinksRecord> links;
  SetTable<GrBubblesRecord> bubbles;
  std::string folder;
  // The version grammar set files are written with; reading accepts it and anything below.
  static constexpr int32_t formatVersion = 1;

 private:
  // Calls visit(name, table) for the nine tables in file order while it answers true.
  template <typename Visit>
  bool ForEachTable(Visit&& visit);

  // The subpoints the level and category searches consider, in key order.
  std::vector<const GrSubpointsRecord*> ConsideredSubpoints(uint32_t firstId,
                                                            uint32_t secondId) const;
};

}  // namespace lumora

#pragma GCC visibility pop
