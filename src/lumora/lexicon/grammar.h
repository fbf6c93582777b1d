// The grammar of one discipline: points with their titles and pictures, subpoints with their
// titles, parts, keywords, links and the text bubbles of the grammar screens, each table in a
// set file of its own in the grammar folder. The discipline loads it when it opens; exports
// build reduced copies and save them.
#pragma once

#include <lumora/lexicon/grammar_records.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <string>
#include <vector>

// The grammar interface that the host program and the diagnosis library call. They reach it
// through its table of virtual operations, so the declaration order below is the slot order
// and never changes: every slot is kept, including those this library answers with false
// (named reservedNN after their slot). Numbers in comments are slot numbers.
//
// Every operation here answers false (or an empty result) and changes nothing; the grammar
// that holds tables overrides the ones it answers.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class CGramBase : public Object {
 public:
  const char* ClassName() const override { return "CGramBase"; }

  // 0: the tables go with the object.
  ~CGramBase() override = default;
  virtual bool reserved01() { return false; }
  virtual bool reserved02() { return false; }
  virtual bool reserved03() { return false; }
  virtual bool reserved04() { return false; }
  virtual bool reserved05() { return false; }
  // 6: every message followed by a line feed.
  virtual std::string getErrors() const;
  virtual bool reserved07() { return false; }
  virtual bool reserved08() { return false; }
  // 9
  virtual bool getPointAttr(uint16_t, uint8_t&) const { return false; }
  virtual bool reserved10() { return false; }
  virtual bool reserved11() { return false; }
  virtual bool reserved12(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  virtual bool reserved13() { return false; }
  virtual bool reserved14() { return false; }
  // 15
  virtual bool countPictures(uint16_t, uint8_t&) const { return false; }
  // 16
  virtual bool getPicture(uint16_t, uint8_t, uint8_t&) const { return false; }
  virtual bool reserved17() { return false; }
  virtual bool reserved18() { return false; }
  virtual bool reserved19() { return false; }
  // 20
  virtual bool getSubpoint(uint32_t, GrSubpointsRecord&) const { return false; }
  virtual bool reserved21(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  virtual bool reserved22() { return false; }
  // 23
  virtual bool getSubpointLevel(uint32_t, uint8_t&) const { return false; }
  virtual bool reserved24() { return false; }
  virtual bool reserved25() { return false; }
  // 26
  virtual bool getSubpointCategory(uint32_t, uint32_t&) const { return false; }
  virtual bool reserved27() { return false; }
  virtual bool reserved28() { return false; }
  virtual bool reserved29() { return false; }
  // 30
  virtual bool getPart(uint32_t, uint8_t, uint8_t, GrPartsRecord&) const { return false; }
  virtual bool reserved31() { return false; }
  // 32
  virtual bool countParts(uint32_t, uint8_t, uint32_t&) const { return false; }
  virtual bool reserved33() { return false; }
  // 34
  virtual bool getKeyword(uint32_t, std::u16string&) const { return false; }
  virtual bool reserved35() { return false; }
  virtual bool reserved36() { return false; }
  // 37
  virtual bool countKeywords(uint32_t, uint32_t&) const { return false; }
  virtual bool reserved38() { return false; }
  // 39
  virtual bool getTitle(uint16_t, uint8_t, std::u16string&) const { return false; }
  virtual bool reserved40() { return false; }
  virtual bool reserved41() { return false; }
  // 42
  virtual bool getSubpointTitle(uint32_t, uint8_t, std::u16string&) const { return false; }
  virtual bool reserved43() { return false; }
  virtual bool reserved44() { return false; }
  // 45
  virtual bool countBubbles(uint8_t, uint16_t, uint8_t, uint8_t&) const { return false; }
  // 46
  virtual bool getBubble(uint8_t, uint16_t, uint8_t, uint8_t, std::u16string&) const {
    return false;
  }
  virtual bool reserved47() { return false; }
  virtual bool reserved48() { return false; }
  // 49
  virtual bool getLinks(uint32_t, std::vector<GrLinksRecord>&) const { return false; }
  // 50
  virtual bool getLinkedSubpoints(uint32_t, std::vector<uint32_t>&) const { return false; }
  virtual bool reserved51() { return false; }
  virtual bool reserved52() { return false; }
  virtual bool reserved53() { return false; }
  virtual bool reserved54() { return false; }
  virtual bool reserved55() { return false; }
  virtual bool reserved56() { return false; }
  virtual bool reserved57() { return false; }
  virtual bool reserved58() { return false; }
  virtual bool reserved59() { return false; }
  virtual bool reserved60() { return false; }
  virtual bool reserved61() { return false; }
  virtual bool reserved62() { return false; }
  virtual bool reserved63() { return false; }
  virtual bool reserved64() { return false; }
  virtual bool reserved65(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  virtual bool reserved66() { return false; }
  virtual bool reserved67() { return false; }
  // 68
  virtual bool getSubpointLevels(std::vector<uint8_t>&, uint32_t, uint32_t) const { return false; }
  // 69
  virtual bool getCategories(std::vector<uint32_t>&, uint32_t, uint32_t) const { return false; }
  // 70
  virtual bool getSubcategories(uint32_t, std::vector<uint32_t>&, uint32_t, uint32_t) const {
    return false;
  }
  // 71
  virtual bool getPointsByLevel(std::vector<uint16_t>&, uint8_t, uint8_t, uint32_t,
                                uint32_t) const {
    return false;
  }
  // 72
  virtual bool getPointsOfSubcategory(uint32_t, std::vector<uint16_t>&, uint32_t, uint32_t) const {
    return false;
  }
  virtual bool reserved73() { return false; }
  // 74
  virtual bool getTitleLanguages(std::vector<uint8_t>&) const { return false; }
  // 75
  virtual bool hasTitleLanguage(uint8_t) const { return false; }
  virtual bool reserved76() { return false; }
  virtual bool reserved77() { return false; }
  virtual bool reserved78() { return false; }
  virtual bool reserved79() { return false; }
  virtual bool reserved80() { return false; }
  virtual bool reserved81() { return false; }
  virtual bool reserved82() { return false; }
  // 83
  virtual bool findPoints(std::vector<uint32_t>&, uint32_t, const std::u16string&, uint32_t,
                          uint8_t) const {
    return false;
  }

  std::vector<std::string> errors;  // messages for the caller; nothing here adds to it
  std::string mediaFolder;          // set each time the grammar is handed to the host
};

}  // namespace lumora

#pragma GCC visibility pop

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
