#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;

using MediaCheck = CheckTest;

// The sample plants five media problems in discipline 1 (and the missing element pictures in
// the two others): the check finds exactly those, each on the resource that names the medium,
// in UTF-8 and with paths below the root.
TEST_F(MediaCheck, FindsExactlyThePlantedProblems) {
  CheckOptions options;
  options.checks = {"media"};
  options.disciplineFilter = 1;
  const std::vector<CheckReport> reports = CheckContentRoot(root(), options);
  ASSERT_EQ(reports.size(), 1u);
  std::vector<std::string> lines;
  for (const Finding& f : reports[0].findings) lines.push_back(f.file + ": " + f.message);
  EXPECT_THAT(
      lines,
      ElementsAre(
          "D001/C0001/r0000008/r0000003.ars: Paragraph n°9 of video 1 does not exist for Item: "
          "1048579",
          "D001/C0001/r0000019/r0000003.ars: Positon Id: 4 not found for Item : 1048579!",
          "D001/C0001/r0001006/r0000003.ars: File not found: "
          "D001/C0001/r0001006/Q1/p0000033.swf!",
          "D001/C0001/r0001005/r0000004.ars: File not found: "
          "D001/C0001/r0001005/Q1/p0000004.swf!",
          "D001/C0002/r0001005/r0000008.ars: File not found: "
          "D001/C0002/r0001005/Q1/p0000008.swf!"));

  // Only the quality folders asked for are looked in.
  options.qualityFolders.Add(2);
  EXPECT_EQ(CheckContentRoot(root(), options)[0].findings[4].message,
            "File not found: D001/C0002/r0001005/Q2/p0000008.swf!");
}

// Asked about some files, the checks of files one by one look at those only.
TEST_F(MediaCheck, OnlyTheResourceFilesAskedForAreLookedAt) {
  CheckOptions options;
  options.checks = {"resources", "media"};
  options.onlyResourceFiles = {"D001/C0001/r0001006/r0000003.ars"};
  const std::vector<CheckReport> reports = CheckContentRoot(root(), options);
  ASSERT_EQ(reports.size(), 2u);
  EXPECT_EQ(reports[0].checked, 1u);
  EXPECT_EQ(reports[1].checked, 1u);
  ASSERT_EQ(reports[1].findings.size(), 1u);
  EXPECT_EQ(reports[1].findings[0].file, options.onlyResourceFiles[0]);
}

// Exercises whose linked elements are gone: one sentence per missing file, whatever the order of
// the lines the resource reports them in.
TEST_F(MediaCheck, AMissingLinkedElementIsOneSentence) {
  for (const auto& entry : std::filesystem::directory_iterator(root() + "D001/C0001/r0001005")) {
    if (entry.path().extension() == ".ars") std::filesystem::remove(entry.path());
  }
  std::map<std::string, int> perExercise;
  const std::regex sentence("File not found: D001/C000[12]/r0001005/r[0-9]{7}\\.ars");
  for (const Finding& f : Report("media").findings) {
    if (f.file.find("/r0000040/") == std::string::npos) continue;
    ++perExercise[f.file];
    EXPECT_TRUE(std::regex_match(f.message, sentence)) << f.file << ": " << f.message;
  }
  ASSERT_FALSE(perExercise.empty());
  EXPECT_GT(std::max_element(perExercise.begin(), perExercise.end(),
                             [](const auto& a, const auto& b) { return a.second < b.second; })
                ->second,
            1);
}

}  // namespace
}  // namespace lumora
