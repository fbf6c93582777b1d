#include <lumora/lexicon/grammar.h>

#include <gmock/gmock.h>

#include <filesystem>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kGrammar = "D001/C0000/r0001002/";

using GrammarCheck = CheckTest;

TEST_F(GrammarCheck, TheSampleGrammarsNameOnlyWhatTheyHoldAndTheDiskHas) {
  const CheckReport report = Report("grammar");
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_GT(report.checked, 30u);
}

// Links to a point and to a subpoint the grammar lacks; a picture folder gone from one quality
// folder and emptied in another; a grammar resource file gone.
TEST_F(GrammarCheck, LinksLeadToWhatTheGrammarHoldsAndRecordsToWhatTheDiskHas) {
  namespace fs = std::filesystem;
  CGramV6 g;
  ASSERT_TRUE(g.load(root() + kGrammar));
  g.links.Insert({3, 9001, 900100, 1, 0});
  g.links.Insert({3, 3002, 300200, 1, 0});
  ASSERT_TRUE(g.save());
  fs::remove_all(root() + kGrammar + "Q2/001");
  fs::remove(root() + kGrammar + "Q3/002/01.swf");
  fs::remove(root() + kGrammar + "r0020010.ars");
  EXPECT_THAT(
      Findings("grammar"),
      ElementsAre(
          "error D001/C0000/r0001002/t_Gr_Links.set: the link from 3 to 3002 leads to subpoint "
          "3002, which t_Gr_Subpoints lacks: the level and category searches over 3 skip it",
          "error D001/C0000/r0001002/t_Gr_Links.set: the link from 3 to 9001 leads to point 9, "
          "which t_Gr_Points lacks: the grammar of 3 and its exports leave it out",
          "error D001/C0000/r0001002/Q2/001/: does not exist, though t_Gr_Pictures lists 2 "
          "pictures of point 1: the host shows none of them and exports copy none",
          "error D001/C0000/r0001002/Q3/002/: holds no .swf file, though t_Gr_Pictures lists 1 "
          "picture of point 2: the host shows none of them and exports copy none",
          "error D001/C0000/r0001002/r0020010.ars: is missing, though part 2001 of t_Gr_Parts "
          "names it: the host finds nothing there and exports cannot copy it"));
}

TEST_F(GrammarCheck, AGrammarThatStopsLoadingIsOneFinding) {
  const std::string parts = dir.Read(std::string(kGrammar) + "t_Gr_Parts.set");
  dir.Write(std::string(kGrammar) + "t_Gr_Parts.set", parts.substr(0, parts.size() - 1));
  std::filesystem::remove(root() + "D002/C0000/r0001002/t_Gr_Points.set");
  EXPECT_THAT(Findings("grammar"),
              ElementsAre("error D001/C0000/r0001002/: the grammar stops loading at table "
                          "t_Gr_Parts (the sets check says why): that table and the ones after "
                          "it stay empty",
                          "error D002/C0000/r0001002/: the grammar does not load (table "
                          "t_Gr_Points fails; the sets check says why): the library answers "
                          "every grammar query as empty"));
}

}  // namespace
}  // namespace lumora
