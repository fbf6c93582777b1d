#include <lumora/platform/folder_lock.h>
#include <lumora/platform/write_queue.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

std::vector<std::string> PathsOf(const std::vector<WriteQueue::Finished>& finished) {
  std::vector<std::string> paths;
  for (const WriteQueue::Finished& done : finished) paths.push_back(done.job.path);
  return paths;
}

TEST(WriteQueue, WritesInOrderAndAnswersEachWriteInTheOrderQueued) {
  testing::TempDir dir;
  const std::string source = dir.Write("src/big.swf", std::string(300000, 'v'));
  std::filesystem::create_directories(dir.path() + "out/taken.ars");
  std::vector<std::string> expected;
  // A small limit makes Add wait for the writer now and then.
  WriteQueue queue(64);
  for (int i = 0; i < 50; ++i) {
    const std::string path = dir.path() + "out/r" + std::to_string(i % 10) + ".ars";
    queue.Add({path, std::string(40, static_cast<char>('a' + i % 26)), ""});
    expected.push_back(path);
  }
  queue.Add({dir.path() + "out/big.swf", "", source});
  queue.Add({dir.path() + "out/taken.ars", "x", ""});
  queue.Add({dir.path() + "missing/r.ars", "x", ""});
  expected.insert(expected.end(), {dir.path() + "out/big.swf", dir.path() + "out/taken.ars",
                                   dir.path() + "missing/r.ars"});
  std::vector<WriteQueue::Finished> finished = queue.TakeFinished(false);
  for (WriteQueue::Finished& done : queue.TakeFinished(true)) finished.push_back(std::move(done));
  ASSERT_EQ(PathsOf(finished), expected);
  EXPECT_TRUE(queue.TakeFinished(true).empty());
  for (size_t i = 0; i < 51; ++i) EXPECT_TRUE(finished[i].status.ok()) << i;
  EXPECT_EQ(finished[51].status.ToString(), dir.path() + "out/taken.ars: is not a regular file");
  EXPECT_EQ(finished[52].status.osError(), ENOENT);
  // The last of the writes of one path is what the file holds.
  EXPECT_EQ(dir.Read("out/r9.ars"), std::string(40, 'x'));
  EXPECT_EQ(dir.Read("out/big.swf"), dir.Read("src/big.swf"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path() + "out"), {}), 12);
}

TEST(WriteQueue, KeepsTheFoldersItWritesIntoLockedUntilItIsGone) {
  testing::TempDir dir;
  std::filesystem::create_directories(dir.path() + "out");
  FolderLock other;
  {
    WriteQueue queue;
    queue.Add({dir.path() + "out/a.ars", "a", ""});
    ASSERT_TRUE(queue.TakeFinished(true).front().status.ok());
    EXPECT_EQ(other.TryAcquire(dir.path() + "out/", FolderLock::Mode::kExclusive), EWOULDBLOCK);
  }
  EXPECT_EQ(other.TryAcquire(dir.path() + "out/", FolderLock::Mode::kExclusive), 0);
}

}  // namespace
}  // namespace lumora
