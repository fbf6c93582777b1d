#include <lumora/resources/types/type2000.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"
#include "resources/types/video_type_builders.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::QualityFolderList;
using testing::U32;

constexpr uint32_t kId = 0x00300005;  // course 3, resource 5

TEST(Type2000Resource, StoredFormIsTheIndexEntryAfterTheTag) {
  Type2000Resource resource = testing::RichType2000();
  const Bytes bytes = testing::StoreObject(resource);
  EXPECT_EQ(bytes, Concat({testing::ResourceHead(5), U32(2000),
                           testing::StoreObject(resource.description)}));
  Type2000Resource back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(testing::StoreObject(back), bytes);
  EXPECT_EQ(back.description.attribute, 2);
  EXPECT_EQ(back.description.titles.Lookup(12).text.view(), u"Cesky");
  EXPECT_EQ(back.description.media.folder, 2000u);
}

TEST(Type2000Media, VerifyAndCopyTheOneMedium) {
  testing::TempDir dir;
  testing::TempDir destination;
  Type2000Resource resource;
  std::string report = "old";
  EXPECT_FALSE(resource.VerifyMedia(dir.path(), QualityFolderList({1}), report, kId));
  EXPECT_EQ(report,
            "\t\tMedia not found for Item n\xB0"
            "3145733!\n");
  EXPECT_FALSE(resource.CopyMedia(destination.path(), kId, QualityFolderList({1}), dir.path()));

  resource.description.media = MediaRef(kMediaVideo, 2000, kId);
  EXPECT_FALSE(resource.VerifyMedia(dir.path(), QualityFolderList({2}), report, kId));
  EXPECT_EQ(report, "\t\tFile not found: " + dir.path() + "C0003/r0002000/Q2/v0000005.mpg!\n");

  dir.Write("C0003/r0002000/Q1/v0000005.avi", "video");
  EXPECT_TRUE(resource.VerifyMedia(dir.path(), QualityFolderList({2}), report, kId));
  EXPECT_EQ(report, "");
  ASSERT_TRUE(resource.CopyMedia(destination.path(), kId, QualityFolderList({1}), dir.path()));
  EXPECT_EQ(destination.Read("C0003/r0002000/Q3/v0000005.avi"), "video");
}

}  // namespace
}  // namespace lumora
