#include <lumora/platform/file.h>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using namespace open_flags;

TEST(File, ReadsUpToTheEndAndKeepsItsPosition) {
  testing::TempDir dir;
  const std::string path = dir.Write("ten.bin", "0123456789");
  File file;
  ASSERT_TRUE(file.Open(path, kRead | kBinary));
  EXPECT_EQ(file.Size(), 10u);
  char buffer[32] = {};
  EXPECT_EQ(file.Read(buffer, 4), 4u);
  EXPECT_EQ(file.Position(), 4u);
  EXPECT_EQ(file.Read(buffer, sizeof buffer), 6u);
  EXPECT_EQ(std::string(buffer, 6), "456789");
  EXPECT_EQ(file.Position(), 10u);
  EXPECT_EQ(file.Read(buffer, sizeof buffer), 0u);
  ASSERT_TRUE(file.SeekTo(2));
  EXPECT_EQ(file.Read(buffer, 3), 3u);
  EXPECT_EQ(std::string(buffer, 3), "234");
  EXPECT_EQ(file.Position(), 5u);
  ASSERT_TRUE(file.SeekToEnd());
  EXPECT_EQ(file.Position(), 10u);
}

TEST(File, WritingMovesThePositionAndGrowsTheSize) {
  testing::TempDir dir;
  const std::string path = dir.Write("old.bin", "much longer old content");
  File file;
  ASSERT_TRUE(file.Open(path, kCreate | kWrite | kBinary));
  EXPECT_EQ(file.Size(), 0u);  // truncated on opening
  ASSERT_TRUE(file.Write("abcde", 5));
  EXPECT_EQ(file.Position(), 5u);
  ASSERT_TRUE(file.SeekTo(1));
  ASSERT_TRUE(file.Write("XY", 2));
  EXPECT_EQ(file.Position(), 3u);
  EXPECT_EQ(file.Size(), 5u);
  file.Close();
  EXPECT_EQ(dir.Read("old.bin"), "aXYde");
}

TEST(File, FoldersAndMissingFilesDoNotOpen) {
  testing::TempDir dir;
  File file;
  EXPECT_FALSE(file.Open(dir.path(), kRead));
  EXPECT_EQ(file.LastError(), EISDIR);
  EXPECT_FALSE(file.Open(dir.path() + "missing.bin", kRead));
  EXPECT_EQ(file.LastError(), ENOENT);
  EXPECT_FALSE(file.IsOpen());
  EXPECT_EQ(file.Position(), 0u);
  EXPECT_EQ(file.Size(), 0u);
}

TEST(ReadWholeFile, ReadsRegularFilesOnlyAndNeverWaits) {
  testing::TempDir dir;
  std::string bytes = "left over";
  const std::string body("ARS\0body", 8);
  EXPECT_EQ(ReadWholeFile(dir.Write("a.ars", body), 64, bytes), WholeFile::kRead);
  EXPECT_EQ(bytes, body);
  EXPECT_EQ(ReadWholeFile(dir.Write("empty.ars", ""), 64, bytes), WholeFile::kRead);
  EXPECT_EQ(bytes, "");
  // What is not a regular file counts as missing: a folder, and a pipe, which a plain open
  // would wait on for a writer.
  EXPECT_EQ(ReadWholeFile(dir.path() + "none.ars", 64, bytes), WholeFile::kMissing);
  EXPECT_EQ(ReadWholeFile(dir.path() + "a.ars/below", 64, bytes), WholeFile::kMissing);
  EXPECT_EQ(ReadWholeFile(dir.path(), 64, bytes), WholeFile::kMissing);
  ASSERT_EQ(::mkfifo((dir.path() + "pipe.ars").c_str(), 0600), 0);
  EXPECT_EQ(ReadWholeFile(dir.path() + "pipe.ars", 64, bytes), WholeFile::kMissing);
  EXPECT_EQ(ReadWholeFile(dir.Write("big.ars", std::string(65, 'x')), 64, bytes),
            WholeFile::kTooLarge);
  EXPECT_EQ(bytes, "");
}

}  // namespace
}  // namespace lumora
