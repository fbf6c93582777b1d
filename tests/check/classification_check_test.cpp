#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>

#include <gmock/gmock.h>

#include <filesystem>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using ClassificationCheck = CheckTest;

TEST_F(ClassificationCheck, EveryClassTheSampleUsesHasItsRecord) {
  const CheckReport report = Report("classification");
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_GT(report.checked, 1000u);
}

// Unknown numbers are reported once each, with the first record that uses them. A subpoint
// code that is a whole category has no subcategory to look up.
TEST_F(ClassificationCheck, ClassNumbersTheTablesLackAreFoundOnceEach) {
  CGloV6 glossary;
  ASSERT_TRUE(glossary.load(root() + "D002/C0000/r0001001"));
  glossary.fns.Find(3)->classIds.push_back(55555);
  glossary.fns.Find(4)->classIds.push_back(55555);
  ASSERT_TRUE(glossary.save(false, {}));
  CGramV6 grammar;
  ASSERT_TRUE(grammar.load(root() + "D002/C0000/r0001002"));
  grammar.subpoints.Find(2001)->categoryCode = 2050000;
  grammar.subpoints.Insert({3002, 1, 5000000});
  ASSERT_TRUE(grammar.save());
  EXPECT_THAT(
      Findings("classification"),
      ElementsAre(
          "error D002/C0000/r0001001/t_Glo_FNs.set: class 55555, listed by word 3 and 1 more, is "
          "in neither t_FamSem nor t_CatGram: the host has no label for it",
          "error D002/C0000/r0001002/t_Gr_Subpoints.set: subcategory 2050000 of subpoint 2001 is "
          "grammar point category 205, which t_GrammarPoint_Category lacks: the host has no "
          "label for it",
          "error D002/C0000/r0001002/t_Gr_Subpoints.set: category 5000000 of subpoint 3002 is "
          "grammar point category 500, which t_GrammarPoint_Category lacks: the host has no "
          "label for it"));
}

TEST_F(ClassificationCheck, AClassificationThatStopsLoadingIsOneFinding) {
  std::filesystem::remove(root() + "Classes/t_CatGram.set");
  EXPECT_THAT(Findings("classification"),
              ElementsAre("error Classes/: the classification stops loading at table t_CatGram "
                          "(the sets check says why): that table and the ones after it stay "
                          "empty"));
}

}  // namespace
}  // namespace lumora
