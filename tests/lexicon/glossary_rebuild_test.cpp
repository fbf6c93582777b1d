#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/platform/notify.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

constexpr uint8_t kEnglishUK = 14;
constexpr uint8_t kFrench = 17;

struct Word {
  uint16_t fnId;
  std::u16string writing;
  uint8_t kind = 1;
  uint16_t letterId = 0;
};

// Word n is written by writing record n + 1000, so that the two numbers cannot be mixed up.
CGloV6 GlossaryOf(uint8_t language, const std::vector<Word>& words) {
  CGloV6 g;
  g.language = language;
  for (const Word& w : words) {
    GloFNRecord fn;
    fn.fnId = w.fnId;
    fn.writingId = static_cast<uint16_t>(w.fnId + 1000);
    fn.kind = w.kind;
    fn.letterId = w.letterId;
    g.fns.Insert(fn);
    g.writings.Insert({fn.writingId, w.writing});
  }
  return g;
}

std::vector<std::pair<uint16_t, uint16_t>> Order(const CGloV6& g) {
  std::vector<std::pair<uint16_t, uint16_t>> order;
  for (const GloFNSortedRecord& r : g.sorted) order.emplace_back(r.position, r.fnId);
  return order;
}

struct Letter {
  std::u16string letter;
  uint16_t letterId, first, last;
  bool operator==(const Letter&) const = default;
};

std::vector<Letter> Letters(const CGloV6& g) {
  std::vector<Letter> letters;
  for (const GloFNLetterRecord& r : g.letters) {
    letters.push_back({r.letter.str(), r.letterId, r.attrA, r.attrB});
  }
  return letters;
}

uint16_t LetterIdOf(const CGloV6& g, uint16_t fnId) { return g.fns.Find(fnId)->letterId; }

TEST(GlossaryRebuild, FrenchWordsGetPositionsAndLetterSections) {
  CGloV6 g = GlossaryOf(kFrench, {{2, u"Arbre"},
                                  {4, u"aaa", 0, 77},
                                  {5, u"âme"},
                                  {9, u"bateau"},
                                  {11, u"l'été"},
                                  {12, u"1789"},
                                  {14, u"zèbre", 1, 55}});
  g.sorted.Insert({40, 4});
  g.letters.Insert({u"Q", 9, 1, 1});
  ASSERT_TRUE(rebuildSortAndLetters(g));

  // A key without letters sorts first and belongs to no section.
  EXPECT_EQ(Order(g), (std::vector<std::pair<uint16_t, uint16_t>>{
                          {1, 12}, {2, 5}, {3, 2}, {4, 9}, {5, 11}, {6, 14}}));
  EXPECT_EQ(Letters(g), (std::vector<Letter>{
                            {u"A", 1, 2, 3}, {u"B", 2, 4, 4}, {u"E", 3, 5, 5}, {u"Z", 4, 6, 6}}));
  const std::vector<std::pair<uint16_t, uint16_t>> letterIds = {{12, 0}, {5, 1},  {2, 1}, {9, 2},
                                                                {11, 3}, {14, 4}, {4, 77}};
  for (const auto& [fnId, letterId] : letterIds) EXPECT_EQ(LetterIdOf(g, fnId), letterId) << fnId;
}

TEST(GlossaryRebuild, EqualKeysKeepWordNumberOrder) {
  CGloV6 g = GlossaryOf(kEnglishUK,
                        {{3, u"the house"}, {6, u"(to) go"}, {7, u"house"}, {8, u"he's a doctor"}});
  ASSERT_TRUE(rebuildSortAndLetters(g));
  EXPECT_EQ(Order(g), (std::vector<std::pair<uint16_t, uint16_t>>{{1, 8}, {2, 6}, {3, 3}, {4, 7}}));
  EXPECT_EQ(Letters(g), (std::vector<Letter>{{u"D", 1, 1, 1}, {u"G", 2, 2, 2}, {u"H", 3, 3, 4}}));
}

// A letter that comes back after another opens a section of its own.
TEST(GlossaryRebuild, ReturningLetterOpensANewSection) {
  // "œuf" files under the low byte of U+0153, 'S', but sorts with the o's.
  CGloV6 g = GlossaryOf(kFrench, {{1, u"ouvrir"}, {2, u"œuf"}, {3, u"ours"}});
  ASSERT_TRUE(rebuildSortAndLetters(g));
  EXPECT_EQ(Order(g), (std::vector<std::pair<uint16_t, uint16_t>>{{1, 2}, {2, 3}, {3, 1}}));
  EXPECT_EQ(Letters(g), (std::vector<Letter>{{u"S", 1, 1, 1}, {u"O", 2, 2, 3}}));
}

TEST(GlossaryRebuild, RebuildStartedDuringARebuildIsRefused) {
  CGloV6 other = GlossaryOf(kFrench, {{1, u"chat"}});
  std::vector<bool> nested;
  const NotifyHandler previous =
      SetNotifyHandler([&](const std::string&) { nested.push_back(rebuildSortAndLetters(other)); });
  CGloV6 g = GlossaryOf(kFrench, {{1, u"(chien"}, {2, u"chat"}});
  const bool outer = rebuildSortAndLetters(g);
  SetNotifyHandler(previous);

  EXPECT_TRUE(outer);
  EXPECT_EQ(nested, std::vector<bool>{false});
  EXPECT_TRUE(other.sorted.empty());
  EXPECT_EQ(Order(g), (std::vector<std::pair<uint16_t, uint16_t>>{{1, 1}, {2, 2}}));
  // The guard is down again once the rebuild is over.
  EXPECT_TRUE(rebuildSortAndLetters(other));
  EXPECT_EQ(other.sorted.size(), 1u);
}

TEST(GlossaryRebuild, WithoutWrittenFormsOrderAndLettersEmptyButLetterIdsStay) {
  CGloV6 g = GlossaryOf(kFrench, {{1, u"chat", 1, 5}});
  g.writings.Clear();
  g.sorted.Insert({1, 1});
  g.letters.Insert({u"C", 5, 1, 1});
  ASSERT_TRUE(rebuildSortAndLetters(g));
  EXPECT_TRUE(g.sorted.empty());
  EXPECT_TRUE(g.letters.empty());
  EXPECT_EQ(LetterIdOf(g, 1), 5);
}

TEST(GlossaryRebuild, EmptyHeadwordTableIsReadFromTheFolder) {
  testing::TempDir dir;
  SetTable<GloFNRecord> onDisk;
  GloFNRecord fn;
  fn.fnId = 3;
  fn.kind = 1;
  fn.letterId = 8;
  onDisk.Insert(fn);
  ASSERT_TRUE(WriteSetTable(dir.path(), u"t_Glo_FNs", SetFamily::kGlossary, onDisk));

  CGloV6 g = GlossaryOf(kFrench, {});
  g.writings.Insert({1003, u"chat"});
  g.setFolder(dir.path());
  ASSERT_TRUE(rebuildSortAndLetters(g));
  ASSERT_EQ(g.fns.size(), 1u);
  EXPECT_EQ(LetterIdOf(g, 3), 8);
  EXPECT_TRUE(g.sorted.empty());
}

}  // namespace
}  // namespace lumora
