#include <lumora/resources/resource_scan.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

TEST(ScanResourceFiles, MatchesTheNamePatternInNameOrder) {
  testing::TempDir dir;
  for (const char* name :
       {"C0002/r0000040/r0000002.ars", "C0001/r0000040/r0000010.ars", "C0001/r0000040/r0000002.ars",
        "C0001/r0000040/r12abcde.ars", "C0001/r0000040/r-000001.ars", "C0001/r0000040/r000001.ars",
        "C0001/r0000040/r00000001.ars", "C0001/r0000040/x0000001.ars",
        "C0001/r0000040/r0000001.arh", "C0001/r0000041/r0000005.ars", "r0000040/r0000003.ars"}) {
    dir.Write(name, "x");
  }
  dir.Write("C0000", "a file, not a course folder");
  std::filesystem::create_directories(dir.path() + "C0003/r0000040/r0000004.ars");

  std::vector<std::pair<std::string, uint32_t>> found;
  for (const auto& file : ScanResourceFiles(dir.path(), 40)) {
    found.emplace_back(file.path.substr(dir.path().size()), file.number);
  }
  const std::vector<std::pair<std::string, uint32_t>> expected = {
      {"C0001/r0000040/r-000001.ars", 0xFFFFFFFF},  // read as -1
      {"C0001/r0000040/r0000002.ars", 2},
      {"C0001/r0000040/r0000010.ars", 10},
      {"C0001/r0000040/r12abcde.ars", 12},  // digits up to the first other character
      {"C0002/r0000040/r0000002.ars", 2},
      {"C0003/r0000040/r0000004.ars", 4},  // a folder still counts; loading it fails later
  };
  EXPECT_EQ(found, expected);
  EXPECT_TRUE(ScanResourceFiles(dir.path() + "missing/", 40).empty());
}

// With twins the ".arh" files come too, each after its ".ars" name; the course comes from the
// folder name only when it is "C" and four digits.
TEST(ScanResourceFiles, GivesTwinsWhenAskedAndTheCourseOfTheFolder) {
  testing::TempDir dir;
  for (const char* name : {"C0001/r0000040/r0000001.ars", "C0001/r0000040/r0000001.arh",
                           "C01/r0000040/r0000002.ars"}) {
    dir.Write(name, "x");
  }
  const auto files = ScanResourceFiles(dir.path(), 40, {true});
  ASSERT_EQ(files.size(), 3u);
  EXPECT_EQ(files[0].path, dir.path() + "C0001/r0000040/r0000001.arh");
  EXPECT_TRUE(files[0].twin);
  EXPECT_EQ(files[0].course, 1u);
  EXPECT_FALSE(files[1].twin);
  EXPECT_EQ(files[2].course, std::nullopt);
  EXPECT_TRUE(files[2].isFile);
  EXPECT_EQ(ScanResourceFiles(dir.path(), 40).size(), 2u);
}

// A check lists the course and type folders once: its scans, on any thread that shares the
// listing, answer from it, including for a type folder that no course holds.
TEST(ScanResourceFiles, AnswersFromASharedListing) {
  testing::TempDir dir;
  dir.Write("C0001/r0000040/r0000001.ars", "x");
  FolderListing listing;
  ListResourceFolders(dir.path(), listing);
  dir.Write("C0001/r0000040/r0000002.ars", "listed after");
  dir.Write("C0001/r0000005/r0000003.ars", "listed after");
  {
    const SharedFolderListing shared(listing);
    EXPECT_EQ(ScanResourceFiles(dir.path(), 40).size(), 1u);
    EXPECT_TRUE(ScanResourceFiles(dir.path(), 5).empty());
    EXPECT_TRUE(ScanResourceFiles(dir.path(), 7).empty());
  }
  EXPECT_EQ(ScanResourceFiles(dir.path(), 40).size(), 2u);
  EXPECT_EQ(ScanResourceFiles(dir.path(), 5).size(), 1u);
}

}  // namespace
}  // namespace lumora
