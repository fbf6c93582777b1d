// The glossary of one discipline: headwords with their written forms, sounds, recognition data,
// clouds, translations, comments, links between words, an alphabetical order and a letter
// index, each table in a set file of its own in the glossary folder. The discipline loads it
// when it opens, then points it at the library-wide classification and gives it the
// discipline's language number; exports build reduced copies and save them.
//
// The sound and recognition tables can be read through their index instead of whole; their
// records are then fetched from the set file one at a time when asked for.
#pragma once

#include <lumora/lexicon/glossary_base.h>
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/load_result.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <string>
#include <vector>

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
