// The searches that give words by letter, the levels and classes they offer, and what an
// empty glossary answers.
#include <lumora/lexicon/glossary.h>

#include <gtest/gtest.h>

#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

class GlossarySearch : public ::testing::Test {
 protected:
  GlossarySearch() { testing::FillSmallGlossary(glossary); }

  WordBuckets ByLetter(uint32_t classId, uint32_t needCode, uint8_t minLevel, uint8_t maxLevel,
                       uint16_t letterId = 0) {
    WordBuckets buckets;
    EXPECT_TRUE(
        glossary.getWordsByLetter(buckets, classId, needCode, minLevel, maxLevel, letterId));
    return buckets;
  }
  WordBuckets Find(const std::u16string& query, bool prefixOnly, uint32_t needCode = 0) {
    WordBuckets buckets;
    EXPECT_TRUE(glossary.findWords(buckets, 0, query, 0, needCode, prefixOnly));
    return buckets;
  }

  CGloV6 glossary;
};

TEST_F(GlossarySearch, LetterSearchFiltersEntriesAndKeepsTheAlphabeticalOrder) {
  const struct {
    uint32_t classId, needCode;
    uint8_t minLevel, maxLevel;
    uint16_t letterId;
    WordBuckets expected;
  } cases[] = {
      // Kind 2 (22) and the word without a letter (31) never appear.
      {0, 0, 0, 0, 0, {{11, 10}, {20, 21}, {30}}},
      {0, 0, 3, 1, 0, {{11}, {21}, {}}},  // a maximum below the minimum counts as the minimum
      {0, 0, 1, 2, 0, {{10}, {20}, {}}},
      {0, 1, 0, 0, 0, {{11}, {21}, {}}},  // 60000 and 49999 are outside the code range
      {0, 0, 0, 0, 2, {{}, {20, 21}, {}}},
      {1020100, 0, 0, 0, 0, {{11}, {21}, {}}},  // a second-level class takes its leaves
      {1020101, 0, 0, 0, 0, {{}, {21}, {}}},
      {1020000, 0, 0, 0, 0, {{11}, {21}, {}}},
      {1030000, 0, 0, 0, 0, {{}, {}, {}}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ByLetter(c.classId, c.needCode, c.minLevel, c.maxLevel, c.letterId), c.expected)
        << c.classId << " " << c.needCode << " " << int{c.minLevel} << " " << int{c.maxLevel};
  }
}

TEST_F(GlossarySearch, LinkedSearchKeepsOnlyTheLinkedWords) {
  WordBuckets buckets{{99}};
  EXPECT_TRUE(glossary.getLinkedWordsByLetter(buckets, 10, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(buckets, (WordBuckets{{}, {20, 21}, {}}));
  EXPECT_TRUE(glossary.getLinkedWordsByLetter(buckets, 10, 11, 0, 0, 3, 3, 0));
  EXPECT_EQ(buckets, (WordBuckets{{}, {21}, {}}));
  EXPECT_TRUE(glossary.getLinkedWordsByLetter(buckets, 11, 10, 0, 0, 0, 0, 3));
  EXPECT_EQ(buckets, (WordBuckets{{}, {}, {30}}));
  // The first word must have links; the second alone does not do.
  EXPECT_FALSE(glossary.getLinkedWordsByLetter(buckets, 12, 10, 0, 0, 0, 0, 0));
  EXPECT_TRUE(buckets.empty());
}

TEST_F(GlossarySearch, TextSearchIgnoresAccentsAndCase) {
  EXPECT_EQ(Find(u"É", true), (WordBuckets{{}, {20, 21}, {}}));
  EXPECT_EQ(Find(u"e", false), (WordBuckets{{}, {20, 21}, {30}}));
  EXPECT_EQ(Find(u"ÉLÈ", false), (WordBuckets{{}, {20}, {}}));
  EXPECT_EQ(Find(u"AMI", true), (WordBuckets{{11}, {}, {}}));
  EXPECT_EQ(Find(u"i", true), (WordBuckets{{}, {}, {}}));
  EXPECT_EQ(Find(u"i", false), (WordBuckets{{11, 10}, {}, {30}}));
  EXPECT_EQ(Find(u"e", false, 1), (WordBuckets{{}, {21}, {}}));
  // Units of 256 and above are compared as they are.
  glossary.writings.Find(530)->writing = u"līre";
  EXPECT_EQ(Find(u"lire", false), (WordBuckets{{}, {}, {}}));
  EXPECT_EQ(Find(u"LĪ", false), (WordBuckets{{}, {}, {}}));
  EXPECT_EQ(Find(u"lī", false), (WordBuckets{{}, {}, {30}}));
}

TEST_F(GlossarySearch, LevelsAndClassesOfTheEntries) {
  std::vector<uint8_t> levels;
  ASSERT_TRUE(glossary.getLevels(levels, 0, 0));
  EXPECT_EQ(levels, (std::vector<uint8_t>{1, 2, 3}));
  ASSERT_TRUE(glossary.getLevels(levels, 11, 0));
  EXPECT_TRUE(levels.empty());  // 30 has level 0
  ASSERT_TRUE(glossary.getLevels(levels, 0, 10));
  EXPECT_EQ(levels, (std::vector<uint8_t>{2, 3}));

  std::vector<uint32_t> classes;
  glossary.fns.Find(20)->classIds = {3000000};  // attrC is not 2: not counted
  ASSERT_TRUE(glossary.getClassIds(classes, 0, 0));
  EXPECT_EQ(classes, (std::vector<uint32_t>{1020100, 1020101}));
  ASSERT_TRUE(glossary.getClassIds(classes, 10, 0));
  EXPECT_EQ(classes, (std::vector<uint32_t>{1020101}));
}

TEST_F(GlossarySearch, EmptyTablesAndAbsentKeysFindNothingAndAddNothing) {
  CGloV6 empty;
  WordBuckets buckets{{1}};
  std::vector<uint8_t> levels{1};
  std::vector<uint32_t> classes{1};
  EXPECT_FALSE(empty.getWordsByLetter(buckets, 0, 0, 0, 0, 0));
  EXPECT_TRUE(buckets.empty());
  EXPECT_FALSE(empty.findWords(buckets, 0, u"a", 0, 0, false));
  EXPECT_FALSE(empty.getLevels(levels, 0, 0));
  EXPECT_TRUE(levels.empty());
  EXPECT_FALSE(empty.getClassIds(classes, 0, 0));
  EXPECT_FALSE(glossary.findWords(buckets, 0, u"", 0, 0, false));

  // A letter number beyond the letter records has no bucket to go to.
  glossary.fns.Find(30)->letterId = 9;
  EXPECT_EQ(ByLetter(0, 0, 0, 0), (WordBuckets{{11, 10}, {20, 21}, {}}));
  EXPECT_EQ(glossary.fns.size(), 7u);
  EXPECT_EQ(glossary.writings.size(), 7u);
}

}  // namespace
}  // namespace lumora
