#include <gmock/gmock.h>

#include <filesystem>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

using IndexCheck = CheckTest;

TEST_F(IndexCheck, TheSampleIsIndexedExactlyAsARebuildWouldIndexIt) {
  const CheckReport report = Report("index");
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_GT(report.checked, 100u);
}

// A resource file gone, another one that the index does not know, and the stored index that
// therefore no longer matches a rebuild.
TEST_F(IndexCheck, ComparesTheIndexWithTheFilesAndWithARebuild) {
  std::filesystem::remove(root() + "D001/C0001/r0000005/r0000002.ars");
  std::filesystem::copy_file(root() + "D001/C0001/r0000005/r0000001.ars",
                             root() + "D001/C0001/r0000005/r0000077.ars");
  const std::vector<std::string> findings = Findings("index");
  ASSERT_EQ(findings.size(), 3u);
  EXPECT_EQ(findings[0],
            "error D001/r0000005.ari: lists resource 2, whose file is in no course folder");
  EXPECT_EQ(findings[1],
            "error D001/C0001/r0000005/r0000077.ars: is not in the type 5 index: the library "
            "never lists it");
  EXPECT_THAT(findings[2], StartsWith("error D001/r0000005.ari: differs from a rebuild of the "
                                      "type 5 resource files ("));
}

TEST_F(IndexCheck, AnIndexThatDoesNotLoadOrIsMissingListsNothing) {
  dir.Write("D001/r0000005.ari", std::string(3, '\0'));
  std::filesystem::remove(root() + "D001/r0000008.ari");
  EXPECT_THAT(Findings("index"),
              ElementsAre("error D001/r0000005.ari: does not load (at byte 3: unexpected end of "
                          "file): the library lists no type 5 resource of this discipline",
                          "error D001/r0000008.ari: is missing, though 4 type 8 resource files "
                          "exist: the library lists none of them"));
}

}  // namespace
}  // namespace lumora
