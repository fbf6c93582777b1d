#include <lumora/resources/types/type1003.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"
#include "resources/types/video_type_builders.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::LinkRecord16;
using testing::QualityFolderList;
using testing::U32;

constexpr uint32_t kId = 0x0010000C;  // course 1, video 12

TEST(Type1003Resource, StoredFormIsScriptVideoTitlePicture) {
  Type1003Resource resource;
  resource.resourceId = kId;
  resource.video = MediaRef(kMediaVideo, 1003, 0x01020304);
  resource.title = CodePageText(1250, WideText(u""));
  resource.picture = MediaRef(kMediaPicture, 0x0102, 5);
  const Bytes expected = Concat({testing::ResourceHead(kId),
                                 U32(1003),
                                 U32(0),
                                 {3, 0xEB, 0x03},
                                 U32(0x01020304),
                                 {0xE2, 0x04},
                                 U32(0),
                                 {2, 0x02, 0x01},
                                 U32(5)});
  EXPECT_EQ(testing::StoreObject(resource), expected);
}

TEST(Type1003Resource, RoundTripKeepsEveryField) {
  Type1003Resource resource = testing::RichType1003();
  const Bytes bytes = testing::StoreObject(resource);
  Type1003Resource back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(testing::StoreObject(back), bytes);
  ASSERT_EQ(back.script.paragraphs.size(), 3u);
  EXPECT_EQ(back.script.paragraphs[2].text.view(), u"Three");
  EXPECT_TRUE(back.script.paragraphs[1].text.empty());
  EXPECT_EQ(back.video.kind, kMediaVideo);
  EXPECT_EQ(back.title.codePage, 1250);
  EXPECT_EQ(back.picture.kind, kMediaPicture);
  EXPECT_EQ(back.records[0], LinkRecord16(1, 1005, 0, 7));
}

TEST(Type1003Media, ResolveBuildsVideoAndPicturePaths) {
  testing::TempDir dir;
  dir.Write("C0001/r0001003/Q2/v0000012.avi", "v");
  dir.Write("C0001/r0001003/Q3/p0000012.swf", "p");
  Type1003Resource resource = testing::RichType1003();
  ContentRequest request;
  request.pathKind = kPathUrl;
  request.mediaOrder = 2;
  resource.ResolveMedia(request, dir.path(), "http://h/");
  EXPECT_EQ(resource.video.path, "http://h/C0001/r0001003/Q2/v0000012.avi");
  EXPECT_EQ(resource.picture.path, "http://h/C0001/r0001003/Q3/p0000012.swf");
}

TEST(Type1003Media, VerifyReportsMissingVideoPictureAndLinkedFiles) {
  testing::TempDir dir;
  Type1003Resource resource = testing::RichType1003();
  resource.records.Add(LinkRecord16(0, 0, 0, 0));   // names no resource
  resource.records.Add(LinkRecord16(1, 40, 2, 8));  // course of the checked id, folder of type 40
  std::string report = "old";
  EXPECT_FALSE(resource.VerifyMedia(dir.path(), QualityFolderList({1}), report, 0x0020000C));
  EXPECT_EQ(report,
            "\t\tNo video found for Item n\xB0"
            "2097164!\n"
            "\t\tNo picture found for Item n\xB0"
            "2097164!\n"
            "\t\tFile not found: " +
                dir.path() + "C0002/r0001005/r0000007.ars!\n" +
                "\t\tFile not found: " + dir.path() + "C0002/r0000040/r0000008.ars!\n");

  dir.Write("C0001/r0001003/Q1/v0000012.mpg", "v");
  dir.Write("C0001/r0001003/Q2/p0000012.swf", "p");
  dir.Write("C0002/r0001005/r0000007.ars", "linked");
  dir.Write("C0002/r0000040/r0000008.ars", "linked");
  EXPECT_TRUE(resource.VerifyMedia(dir.path(), QualityFolderList({1}), report, 0x0020000C));
  EXPECT_EQ(report, "");
  EXPECT_EQ(resource.picture.path, dir.path() + "C0001\\r0001003\\Q2\\p0000012.swf");
  EXPECT_FALSE(resource.VerifyMedia(dir.path(), QualityFolderList({}), report, 0x0020000C));
}

}  // namespace
}  // namespace lumora
