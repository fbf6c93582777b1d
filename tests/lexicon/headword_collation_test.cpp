#include <lumora/lexicon/headword_collation.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace lumora {
namespace {

constexpr uint8_t kEnglishUK = 14;
constexpr uint8_t kFrench = 17;
constexpr uint8_t kRussian = 31;

std::vector<uint16_t> SortedIds(uint8_t language,
                                const std::vector<std::pair<uint16_t, std::u16string>>& words) {
  HeadwordCollator collator(language);
  std::vector<HeadwordEntry> entries;
  for (const auto& [fnId, writing] : words) entries.push_back(collator.Entry(fnId, writing));
  std::sort(entries.begin(), entries.end(), wordLess);
  std::vector<uint16_t> ids;
  for (const HeadwordEntry& e : entries) ids.push_back(e.fnId);
  return ids;
}

TEST(HeadwordCollation, SameKeyFallsBackToTheWordNumber) {
  EXPECT_EQ(SortedIds(kEnglishUK, {{7, u"the house"}, {3, u"house"}}),
            (std::vector<uint16_t>{3, 7}));
  EXPECT_EQ(SortedIds(kEnglishUK, {{3, u"the house"}, {7, u"house"}}),
            (std::vector<uint16_t>{3, 7}));
}

TEST(HeadwordCollation, CaseIsIgnoredAccentsAreNot) {
  // Words differing only in case tie under the locale and fall back to code units: "A" < "a".
  EXPECT_EQ(SortedIds(kFrench, {{1, u"bateau"}, {2, u"arbre"}, {3, u"Arbre"}, {4, u"âme"}}),
            (std::vector<uint16_t>{4, 3, 2, 1}));
  EXPECT_EQ(SortedIds(kFrench, {{1, u"côte"}, {2, u"cote"}, {3, u"Cote"}, {4, u"coter"}}),
            (std::vector<uint16_t>{3, 2, 1, 4}));
  // Letters in the locale's order, not in code-unit order ("é" is above "z" in UTF-16).
  EXPECT_EQ(SortedIds(kFrench, {{1, u"zéro"}, {2, u"été"}, {3, u"Zut"}, {4, u"eux"}}),
            (std::vector<uint16_t>{2, 4, 1, 3}));
}

TEST(HeadwordCollation, KeysAreComparedAsTheLanguagesCodePageReadsThem) {
  // Russian orders «ё» before «ю». Code page 1252 has no Cyrillic: in an English glossary both
  // words become the same unknown characters, tie, and fall back to code units (ю < ё).
  EXPECT_EQ(SortedIds(kRussian, {{1, u"ёж"}, {2, u"юг"}}), (std::vector<uint16_t>{1, 2}));
  EXPECT_EQ(SortedIds(kEnglishUK, {{1, u"ёж"}, {2, u"юг"}}), (std::vector<uint16_t>{2, 1}));
}

// A key that is the beginning of another sorts first, whatever the word numbers.
TEST(HeadwordCollation, ShorterKeyComesFirst) {
  EXPECT_EQ(SortedIds(kFrench, {{0xFFFF, u"ab"}, {1, u"abc"}, {0xFF00, u"ab"}}),
            (std::vector<uint16_t>{0xFF00, 0xFFFF, 1}));
  // Equal under the locale, "Ab" and "AB" differ in code units only; "ab" follows both.
  EXPECT_EQ(SortedIds(kFrench, {{3, u"ab"}, {2, u"Ab"}, {1, u"ABc"}, {4, u"AB"}}),
            (std::vector<uint16_t>{4, 2, 3, 1}));
}

}  // namespace
}  // namespace lumora
