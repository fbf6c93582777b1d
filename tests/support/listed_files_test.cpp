#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

TEST(ListedFiles, AnswersAsFileExistsFromOneListingPerFolder) {
  testing::TempDir dir;
  dir.Write("Q1/s0000001.swf", "sound");
  std::filesystem::create_directories(dir.path() + "Q1/p0000001.swf");
  ASSERT_EQ(::symlink("s0000001.swf", (dir.path() + "Q1/s0000002.swf").c_str()), 0);
  ASSERT_EQ(::symlink("gone.swf", (dir.path() + "Q1/s0000003.swf").c_str()), 0);
  const std::string q1 = dir.path() + "Q1/";
  for (const char* name :
       {"s0000001.swf", "p0000001.swf", "s0000002.swf", "s0000003.swf", "s0000004.swf"}) {
    const bool exists = FileExists(q1 + name);
    EXPECT_EQ(FileListed(q1 + name), exists) << name << " without a listing";
    ListedFiles listed;
    EXPECT_EQ(FileListed(q1 + name), exists) << name << " from the listing";
  }
  ListedFiles listed;
  EXPECT_FALSE(FileListed(dir.path() + "Q2/s0000001.swf"));
  // The folders are listed once: what appears later is not seen while the listing lives.
  EXPECT_FALSE(FileListed(q1 + "s0000005.swf"));
  dir.Write("Q1/s0000005.swf", "late");
  EXPECT_FALSE(FileListed(q1 + "s0000005.swf"));
  dir.Write("Q2/s0000001.swf", "late");
  EXPECT_FALSE(FileListed(dir.path() + "Q2/s0000001.swf"));
}

}  // namespace
}  // namespace lumora
