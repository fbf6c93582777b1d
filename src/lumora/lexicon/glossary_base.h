// The glossary interface that the host program and the diagnosis library call. They reach it
// through its table of virtual operations, so the declaration order below is the slot order
// and never changes: every slot is kept, including those that serve other glossary formats
// (named reservedNN after their slot). Numbers in comments are slot numbers.
//
// Every operation here answers false, 0 or an empty result and changes nothing but the list it
// is given to fill; the glossary that holds tables overrides the ones it answers.
#pragma once

#include <lumora/lexicon/glossary_records.h>
#include <lumora/platform/object.h>

#include <cstdint>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Classification;

// Word numbers grouped by letter section: bucket k - 1 holds the words of letter k.
using WordBuckets = std::vector<std::vector<uint16_t>>;

class CGloBase : public Object {
 public:
  const char* ClassName() const override { return "CGloBase"; }

  // 0: the tables go with the object.
  ~CGloBase() override = default;
  virtual bool reserved01() { return false; }
  virtual bool reserved02() { return false; }
  virtual bool reserved03() { return false; }
  virtual bool reserved04() { return false; }
  virtual bool reserved05() { return false; }
  virtual bool reserved06() { return false; }
  virtual bool reserved07() { return false; }
  virtual bool reserved08() { return false; }
  virtual bool reserved09() { return false; }
  virtual bool reserved10() { return false; }
  virtual bool reserved11() { return false; }
  virtual bool reserved12() { return false; }
  virtual bool reserved13() { return false; }
  virtual bool reserved14() { return false; }
  virtual bool reserved15() { return false; }
  virtual bool reserved16() { return false; }
  virtual bool reserved17() { return false; }
  // 18: every message followed by a line feed.
  virtual std::string getErrors() const;
  virtual bool reserved19() { return false; }
  virtual bool reserved20() { return false; }
  virtual bool reserved21() { return false; }
  // 22
  virtual bool getFN(uint16_t, GloFNRecord&) const { return false; }
  virtual bool reserved23(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  virtual bool reserved24(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  // 25
  virtual std::u16string getWritingText(uint16_t) const { return {}; }
  // 26
  virtual bool getLink(uint32_t, uint32_t, GloLinkRecord&) const { return false; }
  virtual bool reserved27() { return false; }
  // 28
  virtual bool getLinks(uint32_t, std::vector<GloLinkRecord>&) const { return false; }
  virtual bool reserved29() { return false; }
  virtual bool reserved30() { return false; }
  // 31
  virtual bool getWriting(uint16_t, GloWritingRecord&) const { return false; }
  virtual bool reserved32() { return false; }
  virtual bool reserved33() { return false; }
  virtual bool reserved34(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  // 35
  virtual bool getCloud(uint16_t, GloCloudRecord&) const { return false; }
  virtual bool reserved36() { return false; }
  // 37
  virtual bool hasSound(uint16_t) const { return false; }
  // 38
  virtual bool getSound(uint16_t, GloSoundRecord&) const { return false; }
  virtual bool reserved39() { return false; }
  // 40
  virtual bool hasReco(uint16_t) const { return false; }
  // 41
  virtual bool getReco(uint16_t, GloRecoRecord&) const { return false; }
  virtual bool reserved42() { return false; }
  virtual bool reserved43(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  // 44
  virtual bool getRecoFrom(uint16_t, GloRecoRecord&, uint32_t) const { return false; }
  virtual bool reserved45() { return false; }
  virtual bool reserved46(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  virtual bool reserved47() { return false; }
  // 48
  virtual std::u16string getCommentsText(uint16_t) const { return {}; }
  // 49
  virtual std::u16string getCommentOfType7(uint16_t) const { return {}; }
  // 50
  virtual std::u16string getTranslation(uint16_t, uint8_t) const { return {}; }
  virtual bool reserved51() { return false; }
  virtual bool reserved52(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  // 53
  virtual std::u16string getTranslations(const std::vector<uint16_t>&, uint8_t) const { return {}; }
  // 54
  virtual bool getTranslationLanguages(std::vector<uint8_t>&) const { return false; }
  // 55
  virtual bool hasTranslationLanguage(uint8_t) const { return false; }
  virtual bool reserved56(std::vector<uint32_t>& list) {
    list.clear();
    return false;
  }
  // 57
  virtual bool getLetter(uint16_t, GloFNLetterRecord&) const { return false; }
  // 58
  virtual bool getLevels(std::vector<uint8_t>&, uint32_t, uint32_t) const { return false; }
  // 59
  virtual bool getClassIds(std::vector<uint32_t>&, uint32_t, uint32_t) const { return false; }
  // 60
  virtual bool getLetters(std::vector<GloFNLetterRecord>&) const { return false; }
  // 61
  virtual bool getWordsByLetter(WordBuckets&, uint32_t, uint32_t, uint8_t, uint8_t,
                                uint16_t) const {
    return false;
  }
  // 62
  virtual bool getLinkedWordsByLetter(WordBuckets&, uint32_t, uint32_t, uint32_t, uint32_t, uint8_t,
                                      uint8_t, uint16_t) const {
    return false;
  }
  // 63
  virtual bool findWords(WordBuckets&, uint32_t, const std::u16string&, uint32_t, uint32_t,
                         bool) const {
    return false;
  }
  // 64
  virtual std::string getSoundPath(uint16_t, uint8_t) const { return {}; }
  // 65
  virtual std::u16string getSelectedComments(uint16_t) const { return {}; }
  virtual bool reserved66() { return false; }
  virtual bool reserved67() { return false; }
  virtual bool reserved68() { return false; }
  virtual bool reserved69() { return false; }
  virtual bool reserved70() { return false; }
  virtual bool reserved71() { return false; }
  virtual bool reserved72() { return false; }
  virtual bool reserved73() { return false; }
  virtual bool reserved74() { return false; }
  virtual bool reserved75() { return false; }
  virtual bool reserved76() { return false; }
  virtual bool reserved77() { return false; }
  virtual bool reserved78() { return false; }
  virtual bool reserved79() { return false; }
  virtual bool reserved80() { return false; }
  virtual bool reserved81() { return false; }
  virtual bool reserved82() { return false; }
  virtual bool reserved83() { return false; }
  virtual bool reserved84() { return false; }
  virtual bool reserved85() { return false; }
  virtual bool reserved86() { return false; }
  virtual bool reserved87() { return false; }
  virtual bool reserved88() { return false; }
  virtual bool reserved89() { return false; }
  virtual bool reserved90() { return false; }
  virtual bool reserved91() { return false; }
  virtual bool reserved92() { return false; }
  virtual bool reserved93() { return false; }
  virtual bool reserved94() { return false; }
  virtual bool reserved95() { return false; }
  virtual bool reserved96() { return false; }
  virtual bool reserved97() { return false; }
  virtual bool reserved98() { return false; }
  virtual bool reserved99() { return false; }
  virtual bool reserved100() { return false; }
  virtual bool reserved101() { return false; }
  virtual bool reserved102() { return false; }
  virtual bool reserved103() { return false; }
  virtual bool reserved104() { return false; }
  virtual bool reserved105() { return false; }
  virtual bool reserved106() { return false; }
  virtual bool reserved107() { return false; }
  virtual bool reserved108() { return false; }
  virtual bool reserved109() { return false; }
  virtual bool reserved110() { return false; }
  virtual bool reserved111() { return false; }
  virtual bool reserved112() { return false; }
  virtual bool reserved113() { return false; }
  virtual bool reserved114() { return false; }

  uint8_t language = 0;             // the discipline's language number
  std::vector<std::string> errors;  // messages for the caller; nothing here adds to it
  std::string mediaTemplate;        // sound file pattern, set each time the host asks for it
  Classification* classification = nullptr;  // borrowed; the library owns it
};

}  // namespace lumora

#pragma GCC visibility pop
