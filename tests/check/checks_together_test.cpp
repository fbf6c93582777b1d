// Run together, the checks share their work: the resources check decodes each resource file
// once, verifying its media and taking what the index rebuilds keep of it as it goes. Each check
// must still answer exactly what it answers alone, when it reads and decodes the files itself.
#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::Contains;
using testing::FindingLines;
using ::testing::HasSubstr;

using ChecksTogether = CheckTest;

// Besides the media problems and the ".arh" twins the sample plants: an element that does not
// decode, a type-40 resource that does not decode, an element that holds another, and a type-40
// resource gone, so that the stored indexes of both types differ from a rebuild.
TEST_F(ChecksTogether, EveryCheckAnswersAsItDoesAlone) {
  const auto cut = [&](const std::string& file) {
    std::filesystem::resize_file(root() + file, 40);
  };
  cut("D002/C0001/r0001005/r0000002.ars");
  cut("D003/C0001/r0000040/r0000002.ars");
  std::filesystem::copy_file(root() + "D001/C0001/r0001005/r0000002.ars",
                             root() + "D001/C0001/r0001005/r0000001.ars",
                             std::filesystem::copy_options::overwrite_existing);
  std::filesystem::remove(root() + "D001/C0002/r0000040/r0000004.ars");

  const std::vector<CheckReport> together = CheckContentRoot(root(), CheckOptions{});
  ASSERT_EQ(together.size(), CheckNames().size());
  for (const CheckReport& report : together) {
    EXPECT_EQ(FindingLines(report), Findings(report.name)) << report.name;
    EXPECT_EQ(report.checked, Report(report.name).checked) << report.name;
  }

  // The damage reached the checks that share the resources check's work.
  const std::vector<std::string> index = FindingLines(together[3]);
  ASSERT_EQ(together[3].name, "index");
  EXPECT_THAT(index, Contains(HasSubstr("D001/r0001005.ari: differs from a rebuild")));
  EXPECT_THAT(index, Contains(HasSubstr("D001/r0000040.ari: differs from a rebuild")));
  EXPECT_THAT(index, Contains(HasSubstr("D003/r0000040.ari: could not be compared")));
  EXPECT_THAT(index, Contains(HasSubstr("D002/r0001005.ari: could not be compared")));
  ASSERT_EQ(together[4].name, "media");
  EXPECT_THAT(FindingLines(together[4]),
              Contains(HasSubstr("D003/C0001/r0000040/r0000002.ars: does not decode")));
}

}  // namespace
}  // namespace lumora
