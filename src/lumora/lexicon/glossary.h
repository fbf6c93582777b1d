// The glossary of one discipline: headwords with their written forms, sounds, recognition data,
// clouds, translations, comments, links between words, an alphabetical order and a letter
// index, each table in a set file of its own in the glossary folder. The discipline loads it
// when it opens, then points it at the library-wide classification and gives it the
// discipline's language number; exports build reduced copies and save them.
//
// The sound and recognition tables can be read through their index instead of whole; their
// records are then fetched from the set file one at a time when asked for.
#pragma once

#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/load_result.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <string>
#include <vector>

// The glossary interface that the host program and the diagnosis library call. They reach it
// through its table of virtual operations, so the declaration order below is the slot order
// and never changes: every slot is kept, including those that serve other glossary formats
// (named reservedNN after their slot). Numbers in comments are slot numbers.
//
// Every operation here answers false, 0 or an empty result and changes nothing but the list it
// is given to fill; the glossary that holds tables overrides the ones it answers.

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

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class CGloV6 : public CGloBase {
 public:
  const char* ClassName() const override { return "CGloV6"; }

  // Sets `folder`, then reads the ten tables in file order, the sound and recognition tables
  // through their index when one exists; stops at the first that fails (false), leaving the
  // tables read before it loaded.
  bool load(const std::string& folder);
  // load, saying which table failed, where in its file and why.
  LoadResult LoadWithReason(const std::string& folder);
  // Sets `folder` only, with the separator appended unless empty or already there.
  void setFolder(const std::string& folder);
  // Writes the ten tables into `folder` in the same order; stops at the first that fails.
  // `withIndex` writes the index of the sound and recognition tables too; `qualities` names the
  // quality folders whose media a record needs to be listed in that index (none when empty).
  bool save(bool withIndex, const std::vector<uint32_t>& qualities);

  bool getFN(uint16_t fnId, GloFNRecord& record) const override;
  // The written form named by the word's writingId; empty when either record is missing.
  std::u16string getWritingText(uint16_t fnId) const override;
  bool getLink(uint32_t fromId, uint32_t toId, GloLinkRecord& record) const override;
  // The links from `fromId` in key order. False when there are no links at all or none from
  // `fromId` or a later word; true, possibly with none, otherwise.
  bool getLinks(uint32_t fromId, std::vector<GloLinkRecord>& found) const override;
  bool getWriting(uint16_t writingId, GloWritingRecord& record) const override;
  bool getCloud(uint16_t fnId, GloCloudRecord& record) const override;

  // Sounds and recognition data come from the loaded table, or through the index one record at
  // a time when the table was read by index. Words 0 and 65535 never have one.
  //
  // From index version 2 on, the index alone answers: only words with usable records have an
  // offset, and a table read whole, having no index, answers false. Older indexes list every
  // record, so the record itself is read.
  bool hasSound(uint16_t fnId) const override;
  bool getSound(uint16_t fnId, GloSoundRecord& record) const override;
  bool hasReco(uint16_t fnId) const override;
  bool getReco(uint16_t fnId, GloRecoRecord& record) const override;
  // getReco, with the bars of text2 turned into semicolons when `convert` is non-zero.
  bool getRecoFrom(uint16_t fnId, GloRecoRecord& record, uint32_t convert) const override;
  // mediaTemplate expanded for the word in quality folder `quality`, when the word has a sound:
  // by index version 2 when the index lists it, otherwise when its record says so and the file
  // is there. Empty otherwise.
  std::string getSoundPath(uint16_t fnId, uint8_t quality) const override;

  // The word's comments by ascending type, each bracketed by its type and followed by a blank,
  // trailing blanks removed: (type 1) <type 3> [any other type].
  std::u16string getCommentsText(uint16_t fnId) const override;
  // The comment of type 7, only what follows its first "+" when it has one, as "{...}".
  std::u16string getCommentOfType7(uint16_t fnId) const override;
  // Like getCommentsText for types 1 and 7 (parentheses), 3 and 2 only.
  std::u16string getSelectedComments(uint16_t fnId) const override;

  std::u16string getTranslation(uint16_t fnId, uint8_t language) const override;
  // The distinct non-empty translations of the words, in the order of the words, joined by a
  // separator stronger than any punctuation inside them: ", " when none holds a comma or a
  // semicolon, "; " when some holds a comma but none a semicolon, " ; " when some holds a
  // semicolon.
  std::u16string getTranslations(const std::vector<uint16_t>& fnIds,
                                 uint8_t language) const override;
  // The languages of the translations, ascending; false when there are none.
  bool getTranslationLanguages(std::vector<uint8_t>& languages) const override;
  bool hasTranslationLanguage(uint8_t language) const override;

  bool getLetter(uint16_t letterId, GloFNLetterRecord& record) const override;
  // Every letter record in key order; false when there are none.
  bool getLetters(std::vector<GloFNLetterRecord>& found) const override;

  // Searches over the entries (words of kind 1). With firstId and secondId both 0 every entry
  // counts; otherwise only the words the links from either of them name (their attrB).
  // Results are distinct and ascending; false when there are no words at all.
  bool getLevels(std::vector<uint8_t>& levels, uint32_t firstId, uint32_t secondId) const override;
  // The class numbers of the entries whose attrC is 2.
  bool getClassIds(std::vector<uint32_t>& classIds, uint32_t firstId,
                   uint32_t secondId) const override;

  // The entries in alphabetical order, in one bucket per letter, kept when they pass every
  // non-zero filter: a class that one of their classes matches, a code in 50000..59999, a level
  // in [minLevel, maxLevel] (a maxLevel below minLevel counts as minLevel), one letter. False
  // when the order, the words or the letters are missing.
  bool getWordsByLetter(WordBuckets& buckets, uint32_t classId, uint32_t needCode, uint8_t minLevel,
                        uint8_t maxLevel, uint16_t letterId) const override;
  // The same over the words the links from firstId or secondId name; false also when firstId
  // has no link.
  bool getLinkedWordsByLetter(WordBuckets& buckets, uint32_t firstId, uint32_t secondId,
                              uint32_t classId, uint32_t needCode, uint8_t minLevel,
                              uint8_t maxLevel, uint16_t letterId) const override;
  // The entries whose written form holds `query` (or starts with it when `prefixOnly`), both
  // compared in lower case without accents, in one bucket per letter; `needCode` as above.
  // The two numbers are not used.
  bool findWords(WordBuckets& buckets, uint32_t, const std::u16string& query, uint32_t,
                 uint32_t needCode, bool prefixOnly) const override;

  SetTable<GloFNRecord> fns;
  SetTable<GloWritingRecord> writings;
  SetTable<GloSoundRecord> sounds;
  SetTable<GloLinkRecord> links;
  SetTable<GloRecoRecord> recos;
  SetTable<GloCloudRecord> clouds;
  SetTable<GloFNTranslationRecord> translations;
  SetTable<GloCommentRecord> comments;
  SetTable<GloFNSortedRecord> sorted;
  SetTable<GloFNLetterRecord> letters;
  DWordArray soundIndex;  // record offsets in t_Glo_Sounds.set; empty unless read by index
  DWordArray recoIndex;   // the same for t_Glo_Reco1600.set
  std::string folder;
  int32_t setVersion = 2;  // version of the last set file read
  int32_t soundIndexVersion = 2;
  int32_t recoIndexVersion = 2;

 private:
  // The words named (by attrB) by the links from firstId and from secondId, those of the two
  // that are non-zero, ascending and distinct.
  std::vector<uint16_t> LinkedWords(uint32_t firstId, uint32_t secondId) const;
};

}  // namespace lumora

#pragma GCC visibility pop
