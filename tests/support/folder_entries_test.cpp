#include <lumora/support/folder_entries.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

TEST(ListFolder, SortedNamesTellingFoldersAndLinksToFoldersApart) {
  testing::TempDir dir;
  dir.Write("b.txt", "b");
  dir.Write("C0001/r0000040/r0000001.ars", "x");
  dir.Write("a.txt", "a");
  ASSERT_EQ(::symlink((dir.path() + "C0001").c_str(), (dir.path() + "link").c_str()), 0);

  const auto entries = ListFolder(dir.path());
  ASSERT_TRUE(entries);
  ASSERT_EQ(entries->size(), 4u);
  const char* names[] = {"C0001", "a.txt", "b.txt", "link"};
  const bool folders[] = {true, false, false, true};
  for (size_t i = 0; i < 4; ++i) {
    EXPECT_EQ((*entries)[i].name, names[i]);
    EXPECT_EQ((*entries)[i].isFolder, folders[i]) << names[i];
  }
}

TEST(ListFolder, MissingFoldersAndFilesHaveNoListing) {
  testing::TempDir dir;
  const std::string file = dir.Write("file.txt", "x");
  EXPECT_FALSE(ListFolder(dir.path() + "missing/"));
  EXPECT_FALSE(ListFolder(file));
  EXPECT_FALSE(ListFolder(""));
}

}  // namespace
}  // namespace lumora
