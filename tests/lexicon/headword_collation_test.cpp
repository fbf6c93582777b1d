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
  // Code page 1252 has no Cyrillic: both words become the same unknown characters and tie.
  HeadwordCollator english(kEnglishUK);
  EXPECT_EQ(english.Entry(1, u"яма").collationKey, english.Entry(2, u"бор").collationKey);
  HeadwordCollator russian(kRussian);
  EXPECT_LT(russian.Entry(2, u"бор").collationKey, russian.Entry(1, u"яма").collationKey);
}

}  // namespace
}  // namespace lumora
