#include <gmock/gmock.h>

#include <filesystem>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using ResourcesCheck = CheckTest;

TEST_F(ResourcesCheck, EveryResourceFileOfTheSampleDecodes) {
  const CheckReport report = Report("resources");
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_GT(report.checked, 50u);
}

// A file cut short says where it ends; a file of another type, a twin that does not decode and
// a file whose path names another resource than it holds are each found.
TEST_F(ResourcesCheck, SaysWhereAFileStopsDecodingAndWhatItHolds) {
  const std::string folder = root() + "D001/C0001/r0000005/";
  const std::string whole = dir.Read("D001/C0001/r0000005/r0000001.ars");
  dir.Write("D001/C0001/r0000005/r0000001.ars", whole.substr(0, 30));
  dir.Write("D001/C0001/r0000005/r0000002.arh", "ARS");
  std::filesystem::copy_file(root() + "D001/C0001/r0000008/r0000001.ars", folder + "r0000003.ars");
  std::filesystem::copy_file(root() + "D001/C0002/r0000040/r0000003.ars",
                             root() + "D001/C0002/r0000040/r0000009.ars");
  EXPECT_THAT(
      Findings("resources"),
      ElementsAre("error D001/C0001/r0000005/r0000001.ars: does not decode as type 5 (at byte 30: "
                  "unexpected end of file)",
                  "error D001/C0001/r0000005/r0000002.arh: does not decode as type 5 (at byte 3: "
                  "unexpected end of file): the library reads this twin before the .ars file",
                  "error D001/C0001/r0000005/r0000003.ars: does not decode as type 5 (at byte "
                  "40: wrong exercise type)",
                  "error D001/C0002/r0000040/r0000009.ars: holds resource 2097155 (course 2, "
                  "number 3) but its path names course 2, number 9"));
}

}  // namespace
}  // namespace lumora
