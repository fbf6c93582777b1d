#include <gmock/gmock.h>

#include <unistd.h>

#include <filesystem>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using NamesCheck = CheckTest;

// Names copied from a disk that ignores case: the plain check reports them and changes
// nothing; --fix-case renames them (a folder before what lies in it) and lists each.
TEST_F(NamesCheck, ReportsNamesThatDifferInCaseAndRenamesThemWhenAsked) {
  namespace fs = std::filesystem;
  fs::rename(root() + "D001/C0001", root() + "D001/c0001");
  fs::rename(root() + "D001/c0001/r0000005/r0000001.ars",
             root() + "D001/c0001/r0000005/R0000001.ARS");
  fs::rename(root() + "D001/r0000005.ari", root() + "D001/R0000005.Ari");
  const std::vector<std::string> expected = {
      "error D001/R0000005.Ari: differs only in case from r0000005.ari, the name the library "
      "looks for: it is not found (lumora check --fix-case renames it)",
      "error D001/c0001: differs only in case from C0001, the name the library looks for: it is "
      "not found (lumora check --fix-case renames it)",
      "error D001/c0001/r0000005/R0000001.ARS: differs only in case from r0000001.ars, the name "
      "the library looks for: it is not found (lumora check --fix-case renames it)"};
  EXPECT_EQ(Findings("names"), expected);
  EXPECT_EQ(Findings("names"), expected) << "a plain check changes nothing";

  EXPECT_THAT(Findings("names", true),
              ElementsAre("warning D001/r0000005.ari: was named R0000005.Ari: renamed",
                          "warning D001/C0001: was named c0001: renamed",
                          "warning D001/C0001/r0000005/r0000001.ars: was named R0000001.ARS: "
                          "renamed"));
  EXPECT_THAT(Findings("names"), IsEmpty());
  EXPECT_TRUE(fs::is_regular_file(root() + "D001/C0001/r0000005/r0000001.ars"));
}

TEST_F(NamesCheck, ANameLookedForThatIsTakenIsNotRenamed) {
  dir.Write("D001/C0001/r0000005/R0000001.ars", "other");
  EXPECT_THAT(Findings("names", true),
              ElementsAre("error D001/C0001/r0000005/R0000001.ars: differs only in case from "
                          "r0000001.ars, which exists beside it: not renamed"));
  EXPECT_EQ(dir.Read("D001/C0001/r0000005/R0000001.ars"), "other");
}

// Media are looked for in the quality folders of a type, each kind with its own extensions, and
// the glossary's sounds in numbered folders of its own: each of these is renamed like the rest.
TEST_F(NamesCheck, RenamesMediaInTheQualityFoldersWhereTheLibraryLooksForThem) {
  namespace fs = std::filesystem;
  fs::rename(root() + "D001/C0001/r0000040/Q2/v0000011.avi",
             root() + "D001/C0001/r0000040/Q2/V0000011.Avi");
  fs::rename(root() + "D001/C0001/r0001003/Q3", root() + "D001/C0001/r0001003/q3");
  fs::rename(root() + "D001/C0001/r0001003/q3/v0000001.mpg",
             root() + "D001/C0001/r0001003/q3/v0000001.MPG");
  EXPECT_THAT(Findings("names", true),
              ElementsAre("warning D001/C0001/r0000040/Q2/v0000011.avi: was named V0000011.Avi: "
                          "renamed",
                          "warning D001/C0001/r0001003/Q3: was named q3: renamed",
                          "warning D001/C0001/r0001003/Q3/v0000001.mpg: was named v0000001.MPG: "
                          "renamed"));
  EXPECT_TRUE(fs::is_regular_file(root() + "D001/C0001/r0001003/Q3/v0000001.mpg"));
}

// A tree received from elsewhere can hold a link to a folder outside it: what lies there is
// reported, never renamed, and a name looked for elsewhere (Content.ini in a type folder) is
// not one at all.
TEST_F(NamesCheck, NeverRenamesAnythingReachedThroughALinkLeavingTheRoot) {
  namespace fs = std::filesystem;
  testing::TempDir outside;
  outside.Write("CONTENT.INI", "[001]\n");
  outside.Write("R0000001.ARS", dir.Read("D001/C0001/r0000040/r0000001.ars"));
  ASSERT_EQ(::symlink(outside.path().c_str(), (root() + "D001/C0001/r0000041").c_str()), 0);
  const std::vector<std::string> expected = {
      "error D001/C0001/r0000041/R0000001.ARS: differs only in case from r0000001.ars, the name "
      "the library looks for, but its folder lies outside the content root (through a link or "
      "the configuration): it is not found, and lumora check never renames it"};
  EXPECT_EQ(Findings("names"), expected);
  EXPECT_EQ(Findings("names", true), expected);
  EXPECT_TRUE(fs::is_regular_file(outside.path() + "CONTENT.INI"));
  EXPECT_TRUE(fs::is_regular_file(outside.path() + "R0000001.ARS"));
  EXPECT_FALSE(fs::exists(outside.path() + "r0000001.ars"));
}

}  // namespace
}  // namespace lumora
