#include <lumora/platform/atomic_write.h>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::TempDir;

unsigned ModeOf(const std::string& path) {
  struct stat st {};
  ::stat(path.c_str(), &st);
  return st.st_mode & 07777;
}

TEST(AtomicWrite, ReplacesWholeKeepsPermissionsAndRefusesWhatItMustNotTouch) {
  TempDir dir;
  const std::string path = dir.Write("a.ari", "old");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  ASSERT_TRUE(WriteFileAtomically(path, "new bytes").ok());
  EXPECT_EQ(dir.Read("a.ari"), "new bytes");
  EXPECT_EQ(ModeOf(path), 0640u);

  ASSERT_EQ(::chmod(path.c_str(), 0444), 0);
  const WriteStatus read_only = WriteFileAtomically(path, "newer");
  EXPECT_FALSE(read_only.ok());
  EXPECT_EQ(read_only.ToString(), path + ": is read-only");
  EXPECT_EQ(dir.Read("a.ari"), "new bytes");

  const WriteStatus no_folder = WriteFileAtomically(dir.path() + "no/b.ari", "x");
  EXPECT_EQ(no_folder.osError(), ENOENT);
  EXPECT_EQ(LastWriteFailure().path(), dir.path() + "no/b.ari");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}

TEST(AtomicWrite, CopiesAndWritesAWholeTreeWithOneFlush) {
  TempDir dir;
  const std::string source = dir.Write("src.swf", std::string(100000, 'q'));
  {
    DeferredFlush flush(dir.path());
    ASSERT_TRUE(CopyFileAtomically(source, dir.path() + "copy.swf").ok());
    ASSERT_TRUE(WriteFileAtomically(dir.path() + "other.bin", "x").ok());
    EXPECT_TRUE(flush.Finish().ok());
  }
  EXPECT_EQ(dir.Read("copy.swf"), dir.Read("src.swf"));
  EXPECT_FALSE(CopyFileAtomically(dir.path() + "missing.swf", dir.path() + "c.swf").ok());
  EXPECT_FALSE(std::filesystem::exists(dir.path() + "c.swf"));
}

}  // namespace
}  // namespace lumora
