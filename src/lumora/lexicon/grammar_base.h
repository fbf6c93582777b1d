// The grammar interface that the host program and the diagnosis library call. They reach it
// through its table of virtual operations, so the declaration order below is the slot order
// and never changes: every slot is kept, including those this library answers with false
// (named reservedNN after their slot). Numbers in comments are slot numbers.
//
// Every operation here answers false (or an empty result) and changes nothing; the grammar
// that holds tables overrides the ones it answers.
#pragma once

#include <lumora/lexicon/grammar_records.h>
#include <lumora/platform/object.h>

#include <cstdint>
#include <string>
#include <vector>

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
