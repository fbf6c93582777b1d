#include <lumora/resources/types/type1006.h>
#include <lumora/support/paths.h>

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

TEST(Type1006Resource, StoredFormIsMediaTableTitleStrings) {
  Type1006Resource resource;
  resource.resourceId = 6;
  resource.media = MediaRef(kMediaSound, 1006, 6);
  auto entry = std::make_unique<CaptionedMedia>();
  entry->media = MediaRef(kMediaPicture, 1006, 7);
  resource.entries.Add(4, std::move(entry));
  resource.strings.items = {"s"};
  const Bytes expected = Concat({testing::ResourceHead(6),
                                 U32(1006),
                                 {1, 0xEE, 0x03},
                                 U32(6),
                                 U32(1),
                                 {0},
                                 U32(4),
                                 U32(1),
                                 U32(20),
                                 U32(4),  // keys
                                 {0xE4, 0x04},
                                 U32(0),
                                 {2, 0xEE, 0x03},
                                 U32(7),  // entry
                                 {0xE4, 0x04},
                                 U32(0),
                                 {1, 0},
                                 {1, 's'}});
  EXPECT_EQ(testing::StoreObject(resource), expected);
}

TEST(Type1006Resource, RoundTripKeepsEveryField) {
  Type1006Resource resource = testing::RichType1006();
  const Bytes bytes = testing::StoreObject(resource);
  Type1006Resource back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(testing::StoreObject(back), bytes);
  EXPECT_EQ(back.media.kind, kMediaSound);
  ASSERT_EQ(back.entries.size(), 2u);
  EXPECT_EQ(back.entries.KeyAt(0), 9u);
  EXPECT_EQ(back.entries.Find(9)->media.resource, 0x00100009u);
  EXPECT_EQ(back.entries.Find(3)->caption.codePage, 1251);
  EXPECT_EQ(back.title.text.view(), u"Pictures");
  EXPECT_EQ(back.strings.items, (std::vector<std::string>{"alpha", "beta"}));
}

TEST(Type1006Media, ResolveVerifyAndCopyReachEveryMedium) {
  testing::TempDir dir;
  dir.Write("C0001/r0001006/Q2/s0000006.swf", "own");
  Type1006Resource resource = testing::RichType1006();
  ContentRequest request;
  request.pathKind = kPathUnc;
  request.mediaOrder = 1;
  resource.ResolveMedia(request, dir.path(), "\\\\srv\\c\\");
  EXPECT_EQ(resource.media.path, "\\\\srv\\c\\C0001\\r0001006\\Q2\\s0000006.swf");

  // The entry's picture is missing; the entry without a medium is not checked.
  std::string report = "old";
  EXPECT_FALSE(resource.VerifyMedia(dir.path(), QualityFolderList({3, 1}), report, 6));
  EXPECT_EQ(report, "\t\tFile not found: " + dir.path() + "C0001/r0001006/Q3/p0000009.swf!\n");

  dir.Write("C0001/r0001006/Q1/p0000009.swf", "entry");
  EXPECT_TRUE(resource.VerifyMedia(dir.path(), QualityFolderList({3, 1}), report, 6));
  EXPECT_EQ(report, "");

  testing::TempDir destination;
  ASSERT_TRUE(
      resource.CopyMedia(destination.path(), 0x00200006, QualityFolderList({2}), dir.path()));
  EXPECT_EQ(destination.Read("C0002/r0001006/Q2/s0000006.swf"), "own");
  EXPECT_EQ(destination.Read("C0002/r0001006/Q2/p0000009.swf"), "entry");
}

}  // namespace
}  // namespace lumora
