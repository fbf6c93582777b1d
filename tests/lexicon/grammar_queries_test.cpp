#include <lumora/lexicon/grammar.h>

#include <gtest/gtest.h>

#include <vector>

namespace lumora {
namespace {

template <typename T>
using List = std::vector<T>;

TEST(GrammarCounts, MissingKeyPartStartsAtZeroForPartsAndAtOneForPicturesAndBubbles) {
  CGramV6 g;
  for (uint8_t picture : {0, 1, 2}) g.pictures.Insert({1, picture, 0});
  g.pictures.Insert({2, 0, 0});
  g.pictures.Insert({3, 1, 0});
  g.parts.Insert({5, 0, 1});
  g.parts.Insert({5, 1, 1});
  g.parts.Insert({5, 2, 3});
  g.parts.Insert({6, 0, 0});
  for (uint8_t c : {0, 1, 2}) g.bubbles.Insert({1, 10, 2, c, u""});
  g.bubbles.Insert({1, 10, 3, 1, u""});
  g.bubbles.Insert({2, 10, 2, 1, u""});

  uint8_t small = 9;
  EXPECT_TRUE(g.countPictures(1, small));
  EXPECT_EQ(small, 2);
  EXPECT_FALSE(g.countPictures(2, small));  // only a picture numbered 0
  EXPECT_EQ(small, 0);
  EXPECT_TRUE(g.countBubbles(1, 10, 2, small));
  EXPECT_EQ(small, 2);
  EXPECT_FALSE(g.countBubbles(1, 11, 2, small));

  uint32_t count = 9;
  EXPECT_TRUE(g.countParts(5, 1, count));
  EXPECT_EQ(count, 2u);
  EXPECT_TRUE(g.countParts(6, 0, count));  // attrA 0 and attrB 0 are counted
  EXPECT_EQ(count, 1u);
  EXPECT_TRUE(g.countParts(5, 9, count));  // the part exists, no record has that attrB
  EXPECT_EQ(count, 0u);
  EXPECT_FALSE(g.countParts(7, 0, count));
}

TEST(GrammarCounts, KeywordsOfASubpointAreItsHundredNumbers) {
  CGramV6 g;
  for (uint32_t id : {299u, 300u, 355u, 399u, 400u, 30000u}) g.keywords.Insert({id, u""});
  uint32_t count = 0;
  EXPECT_TRUE(g.countKeywords(3, count));
  EXPECT_EQ(count, 3u);
  EXPECT_TRUE(g.countKeywords(300, count));
  EXPECT_EQ(count, 1u);
  EXPECT_FALSE(g.countKeywords(5, count));
  EXPECT_EQ(count, 0u);
  EXPECT_FALSE(g.countKeywords(50000000, count));  // times 100 is beyond every keyword number
}

TEST(GrammarLookups, AbsentKeysAnswerFalseWithEmptyOutputs) {
  CGramV6 g;
  g.points.Insert({4, 0x21, 0, u""});
  g.subpoints.Insert({4001, 3, 2010000});
  g.titles.Insert({4, 1, u"Title"});
  g.errors = {"one", "two"};
  uint8_t attr = 9;
  EXPECT_TRUE(g.getPointAttr(4, attr));
  EXPECT_EQ(attr, 0x21);
  EXPECT_FALSE(g.getPointAttr(5, attr));
  EXPECT_EQ(attr, 0);
  uint32_t category = 9;
  EXPECT_TRUE(g.getSubpointCategory(4001, category));
  EXPECT_EQ(category, 2010000u);
  EXPECT_FALSE(g.getSubpointCategory(4002, category));
  EXPECT_EQ(category, 0u);
  std::u16string title = u"old";
  EXPECT_FALSE(g.getTitle(4, 2, title));
  EXPECT_EQ(title, u"");
  EXPECT_EQ(g.getErrors(), "one\ntwo\n");
}

// Subpoints of points 1 to 4 with levels and categories; links from 50 reach 1001 and 3001 (and
// a subpoint that does not exist), the link from 60 reaches 2001.
class GrammarLinks : public ::testing::Test {
 protected:
  void SetUp() override {
    g.subpoints.Insert({1001, 2, 3020000});
    g.subpoints.Insert({1002, 5, 3030000});
    g.subpoints.Insert({2001, 1, 4010000});
    g.subpoints.Insert({3001, 3, 0});
    g.subpoints.Insert({4002, 4, 3020000});
    g.links.Insert({50, 1, 100100});
    g.links.Insert({50, 2, 300199});
    g.links.Insert({50, 3, 999900});
    g.links.Insert({60, 1, 200100});
  }
  CGramV6 g;
};

TEST_F(GrammarLinks, LevelsComeFromFirstSubpointsOfTheLinkedSet) {
  List<uint8_t> levels{9};
  EXPECT_TRUE(g.getSubpointLevels(levels, 0, 0));
  EXPECT_EQ(levels, (List<uint8_t>{1, 2, 3}));
  EXPECT_TRUE(g.getSubpointLevels(levels, 50, 0));
  EXPECT_EQ(levels, (List<uint8_t>{2, 3}));
  EXPECT_TRUE(g.getSubpointLevels(levels, 60, 50));
  EXPECT_EQ(levels, (List<uint8_t>{1, 2, 3}));
  EXPECT_TRUE(g.getSubpointLevels(levels, 70, 0));
  EXPECT_TRUE(levels.empty());

  List<uint16_t> points;
  const struct {
    uint8_t min, max;
    uint32_t first;
    List<uint16_t> expected;
  } cases[] = {
      {0, 0, 0, {1, 2, 3}}, {2, 4, 0, {1, 3}}, {3, 1, 0, {3}}, {0, 9, 60, {2}}, {2, 4, 60, {}},
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(g.getPointsByLevel(points, c.min, c.max, c.first, 0));
    EXPECT_EQ(points, c.expected) << int(c.min) << ".." << int(c.max) << " from " << c.first;
  }
}

TEST_F(GrammarLinks, CategoriesAndSubcategoriesFollowTheLinkedSet) {
  List<uint32_t> found;
  EXPECT_TRUE(g.getCategories(found, 0, 0));
  EXPECT_EQ(found, (List<uint32_t>{3000000, 4000000}));
  EXPECT_TRUE(g.getCategories(found, 60, 0));
  EXPECT_EQ(found, (List<uint32_t>{4000000}));
  EXPECT_TRUE(g.getSubcategories(3000000, found, 0, 0));
  EXPECT_EQ(found, (List<uint32_t>{3020000, 3030000}));
  EXPECT_TRUE(g.getSubcategories(3000000, found, 50, 0));
  EXPECT_EQ(found, (List<uint32_t>{3020000}));

  List<uint16_t> points;
  EXPECT_TRUE(g.getPointsOfSubcategory(3020000, points, 0, 0));
  EXPECT_EQ(points, (List<uint16_t>{1, 4}));
  EXPECT_TRUE(g.getPointsOfSubcategory(3020000, points, 0, 50));
  EXPECT_EQ(points, (List<uint16_t>{1}));

  List<uint32_t> reached;
  EXPECT_TRUE(g.getLinkedSubpoints(50, reached));
  EXPECT_EQ(reached, (List<uint32_t>{1001, 3001}));

  CGramV6 empty;
  EXPECT_FALSE(empty.getCategories(found, 0, 0));
  List<uint8_t> levels;
  EXPECT_FALSE(empty.getSubpointLevels(levels, 0, 0));
}

TEST(GrammarSearch, FindPointsListsEachPointOnceInAscendingOrder) {
  CGramV6 g;
  List<uint32_t> found{7};
  EXPECT_FALSE(g.findPoints(found, 0, u"tense", 0, 1));
  EXPECT_TRUE(found.empty());

  g.titles.Insert({1, 1, u"Present tense"});
  g.titles.Insert({2, 1, u"Past"});
  g.titles.Insert({2, 2, u"tense"});
  g.subpointTitles.Insert({1001, 1, u"tense of verbs"});
  g.subpointTitles.Insert({0, 1, u"tense nowhere"});
  g.keywords.Insert({100101, u"tense"});
  g.keywords.Insert({500101, u"tense"});  // keywords match in any language
  g.bubbles.Insert({1, 3, 1, 1, u"no tense here"});
  g.bubbles.Insert({2, 4, 1, 1, u"tense"});
  EXPECT_TRUE(g.findPoints(found, 0, u"tense", 0, 1));
  EXPECT_EQ(found, (List<uint32_t>{1, 3, 5}));
  EXPECT_TRUE(g.findPoints(found, 0, u"Tense", 0, 1));
  EXPECT_TRUE(found.empty());

  List<uint8_t> languages;
  EXPECT_TRUE(g.getTitleLanguages(languages));
  EXPECT_EQ(languages, (List<uint8_t>{1, 2}));
  EXPECT_TRUE(g.hasTitleLanguage(2));
  EXPECT_FALSE(g.hasTitleLanguage(3));
}

}  // namespace
}  // namespace lumora
