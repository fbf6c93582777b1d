#include <gmock/gmock.h>

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

}  // namespace
}  // namespace lumora
