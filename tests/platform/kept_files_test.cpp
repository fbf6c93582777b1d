#include <lumora/platform/archive.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/disk.h>
#include <lumora/platform/kept_files.h>
#include <lumora/platform/stream.h>
#include <lumora/platform/typed_array.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

// The bytes of a one-element ByteArray holding `value`, as an archive stores it.
std::string ArrayBytes(uint8_t value) {
  ByteArray array;
  array.Add(value);
  StringSink sink;
  Archive ar(sink, Archive::Mode::kStore);
  array.Serialize(ar);
  ar.Flush();
  return sink.Take();
}

TEST(KeptFiles, LoadsFromTheKeptBytesUntilTheFileChanges) {
  testing::TempDir dir;
  const std::string path = dir.Write("a.ars", ArrayBytes(5));
  {
    KeptFiles kept;
    KeepFile(path, ArrayBytes(7));
    ByteArray loaded;
    ASSERT_TRUE(LoadArchiveFile(path, false, loaded));
    EXPECT_EQ(loaded[0], 7);

    // Any change the library makes at the path forgets what was kept for it.
    ASSERT_TRUE(WriteFileAtomically(path, ArrayBytes(9)).ok());
    EXPECT_EQ(KeptFile(path), nullptr);
    ASSERT_TRUE(LoadArchiveFile(path, false, loaded));
    EXPECT_EQ(loaded[0], 9);
    KeepFile(path, ArrayBytes(7));
    EXPECT_EQ(disk::Remove(path), 0);
    EXPECT_EQ(KeptFile(path), nullptr);
  }
  // Without a KeptFiles nothing is kept.
  KeepFile(path, ArrayBytes(7));
  EXPECT_EQ(KeptFile(path), nullptr);
}

TEST(KeptFiles, KeepsNothingPastItsLimit) {
  KeptFiles kept(4);
  KeepFile("a", "1234");
  KeepFile("b", "5");
  ASSERT_NE(KeptFile("a"), nullptr);
  EXPECT_EQ(KeptFile("b"), nullptr);
  // Replacing what is kept for a path frees its room first.
  KeepFile("a", "12");
  KeepFile("b", "56");
  EXPECT_EQ(*KeptFile("a"), "12");
  EXPECT_EQ(*KeptFile("b"), "56");
}

// Work split across threads reads what one thread kept, and can neither add to it nor take
// from it.
TEST(KeptFiles, AViewOnAnotherThreadReadsWhatWasKeptAndChangesNothing) {
  KeptFiles kept;
  KeepFile("a", "kept");
  std::thread([&kept] {
    EXPECT_EQ(KeptFile("a"), nullptr) << "no view yet";
    const KeptFilesView view(kept);
    ASSERT_NE(KeptFile("a"), nullptr);
    EXPECT_EQ(*KeptFile("a"), "kept");
    KeepFile("b", "new");
    ForgetKeptFile("a");
  }).join();
  EXPECT_EQ(KeptFile("b"), nullptr);
  ASSERT_NE(KeptFile("a"), nullptr);
}

}  // namespace
}  // namespace lumora
