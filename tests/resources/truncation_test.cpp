// Damaged files of every stored form, read through the loaders the library itself uses: a
// resource through LoadResource, an index file through the resource index of a discipline.
// A damaged file must read as missing, and must never crash, over-allocate or hang.
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "fixtures/temp_dir.h"
#include "resources/stored_files.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::EveryStoredForm;
using testing::kStoredResourceId;
using testing::StoredFile;

// Where the library looks for the file, below a folder that serves as both the Local root
// and the data folder of a discipline.
std::string PathOf(const StoredFile& file, const std::string& folder) {
  return file.resource ? ResourceFilePath(folder, file.type, kStoredResourceId)
                       : IndexFilePath(folder, file.type);
}

class DamagedFiles : public ::testing::Test {
 protected:
  // Writes `bytes` where the library looks for `file` and reads them as the library does.
  bool Reads(const StoredFile& file, const Bytes& bytes) const {
    const std::string path = PathOf(file, dir_.path());
    dir_.Write(path.substr(dir_.path().size()), std::string(bytes.begin(), bytes.end()));
    if (!file.resource) return ResourceIndex(dir_.path()).FindType(file.type) != nullptr;
    auto resource = NewResource(file.type);
    return LoadResource(dir_.path(), dir_.path(), ContentRequest{}, kStoredResourceId, *resource,
                        false)
        .ok();
  }

  testing::TempDir dir_;
};

TEST_F(DamagedFiles, EveryFormStoresBackWhatItRead) {
  for (const StoredFile& file : EveryStoredForm()) {
    SCOPED_TRACE(file.name);
    ASSERT_TRUE(Reads(file, file.bytes));
    const std::string path = PathOf(file, dir_.path());
    const std::string copy = dir_.path() + "copy";
    if (file.resource) {
      auto resource = NewResource(file.type);
      ASSERT_TRUE(LoadArchiveFile(path, false, *resource));
      ASSERT_TRUE(LoadArchiveFile(copy, true, *resource));
    } else {
      auto index = NewTypeIndex(file.type);
      ASSERT_TRUE(index->Load(path));
      ASSERT_TRUE(LoadArchiveFile(copy, true, *index));
    }
    EXPECT_EQ(dir_.Read("copy"), std::string(file.bytes.begin(), file.bytes.end()));
  }
}

TEST_F(DamagedFiles, EveryTruncationReadsAsMissing) {
  for (const StoredFile& file : EveryStoredForm()) {
    SCOPED_TRACE(file.name);
    for (size_t length = 0; length < file.bytes.size(); ++length) {
      EXPECT_FALSE(Reads(file, Bytes(file.bytes.begin(), file.bytes.begin() + length)))
          << "length " << length << " of " << file.bytes.size();
    }
  }
}

// Any four bytes set to 0xFFFFFFFF: where they land on a count or a length, the loader must
// refuse it against the bytes left instead of allocating for it. Elsewhere the file may still
// read; either way the load ends promptly and the sanitizers stay quiet.
TEST_F(DamagedFiles, HugeCountsAnywhereAreRefusedWithoutAllocating) {
  for (const StoredFile& file : EveryStoredForm()) {
    SCOPED_TRACE(file.name);
    size_t refused = 0;
    for (size_t at = 0; at < file.bytes.size(); ++at) {
      Bytes damaged = file.bytes;
      std::fill(damaged.begin() + at, damaged.begin() + std::min(at + 4, damaged.size()), 0xFF);
      if (!Reads(file, damaged)) ++refused;
    }
    EXPECT_GT(refused, 0u);
  }
}

TEST_F(DamagedFiles, ResourceWithWrongMagicOrTypeTagReadsAsMissing) {
  for (const StoredFile& file : EveryStoredForm()) {
    if (!file.resource) continue;
    SCOPED_TRACE(file.name);
    for (size_t at = 0; at < 4; ++at) {
      Bytes damaged = file.bytes;
      damaged[at] ^= 0x20;  // "ars" or "aRS": the magic is case-sensitive
      EXPECT_FALSE(Reads(file, damaged)) << at;
    }
  }
  // The type tag follows the head: magic, id and a typed array of one 16-byte link record.
  const StoredFile type40 = EveryStoredForm()[0];
  ASSERT_EQ(type40.type, 40u);
  const size_t tag_at = 8 + 12 + 16;
  ASSERT_EQ(type40.bytes[tag_at], 40);
  for (uint8_t tag : {5, 41, 0}) {
    Bytes damaged = type40.bytes;
    damaged[tag_at] = tag;
    EXPECT_FALSE(Reads(type40, damaged)) << int{tag};
  }
}

}  // namespace
}  // namespace lumora
