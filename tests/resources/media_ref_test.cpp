#include <lumora/resources/content_request.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/resource_id.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::TempDir;

constexpr uint32_t kId = 0x00100123;  // course 1, resource 291
const std::string kUrl = "http://host/course/";
const std::string kUnc = "\\\\srv\\content\\";

class BuildPathTest : public ::testing::Test {
 protected:
  // Creates a medium below the Local root's type-40 folder of course 1.
  void Put(const std::string& relative) { dir_.Write("C0001/r0000040/" + relative, "m"); }

  std::optional<std::string> Build(uint32_t kind, uint32_t path_kind, uint8_t selector) {
    MediaRef media(kind, 40, kId);
    const std::string& root = path_kind == kPathUnc ? kUnc : kUrl;
    if (!media.BuildPath(dir_.path(), path_kind, root, selector)) return std::nullopt;
    return media.path;
  }

  TempDir dir_;
};

TEST_F(BuildPathTest, AnswersBelowTheChosenRootWithItsSeparator) {
  Put("Q1/p0000291.swf");
  EXPECT_EQ(Build(kMediaPicture, kPathUrl, 1), kUrl + "C0001/r0000040/Q1/p0000291.swf");
  EXPECT_EQ(Build(kMediaPicture, kPathUnc, 1), kUnc + "C0001\\r0000040\\Q1\\p0000291.swf");
  EXPECT_EQ(Build(kMediaPicture, kPathLocal, 1), std::nullopt);
  EXPECT_EQ(Build(kMediaPicture, 7, 1), std::nullopt);
  EXPECT_EQ(Build(kMediaSound, kPathUrl, 1), std::nullopt);  // s0000291.swf is absent
  EXPECT_EQ(Build(4, kPathUrl, 1), std::nullopt);
}

TEST_F(BuildPathTest, QualityFolderOrderAndExtensionPrecedence) {
  Put("Q3/v0000291.avi");
  Put("Q1/v0000291.swf");
  EXPECT_EQ(Build(kMediaVideo, kPathUrl, 1), kUrl + "C0001/r0000040/Q1/v0000291.swf");
  EXPECT_EQ(Build(kMediaVideo, kPathUrl, 3), kUrl + "C0001/r0000040/Q3/v0000291.avi");
  EXPECT_EQ(Build(kMediaVideo, kPathUrl, 2), kUrl + "C0001/r0000040/Q3/v0000291.avi");
  Put("Q3/v0000291.mpg");
  EXPECT_EQ(Build(kMediaVideo, kPathUrl, 3), kUrl + "C0001/r0000040/Q3/v0000291.mpg");
  // Within one folder .avi comes before .swf; a folder named like a video is no video.
  Put("Q1/v0000291.avi");
  std::filesystem::create_directories(dir_.path() + "C0001/r0000040/Q1/v0000291.mpg");
  EXPECT_EQ(Build(kMediaVideo, kPathUrl, 1), kUrl + "C0001/r0000040/Q1/v0000291.avi");
}

TEST_F(BuildPathTest, SelectorTwoStillReachesQ1AndFoldersDoNotCount) {
  std::filesystem::create_directories(dir_.path() + "C0001/r0000040/Q2/p0000291.swf");
  EXPECT_EQ(Build(kMediaPicture, kPathUrl, 2), std::nullopt);
  Put("Q1/p0000291.swf");
  EXPECT_EQ(Build(kMediaPicture, kPathUrl, 2), kUrl + "C0001/r0000040/Q1/p0000291.swf");
}

TEST_F(BuildPathTest, FailureLeavesThePathAndFolderZeroFails) {
  Put("Q1/p0000291.swf");
  MediaRef media(kMediaPicture, 40, kId);
  media.path = "earlier";
  EXPECT_FALSE(media.BuildPath(dir_.path(), kPathLocal, dir_.path(), 1));
  EXPECT_EQ(media.path, "earlier");
  media.folder = 0;
  EXPECT_FALSE(media.BuildPath(dir_.path(), kPathUrl, kUrl, 1));
  EXPECT_EQ(media.path, "earlier");
}

TEST(MediaRef, FolderAndFileNamesPadTheirNumbersAndKeepLongerOnes) {
  EXPECT_EQ(CourseFolderName(0), "C0000");
  EXPECT_EQ(CourseFolderName(1), "C0001");
  EXPECT_EQ(CourseFolderName(4095), "C4095");
  EXPECT_EQ(CourseFolderName(12345), "C12345");
  EXPECT_EQ(NumberedName('r', 40), "r0000040");
  EXPECT_EQ(NumberedName('s', 1048575), "s1048575");
  EXPECT_EQ(NumberedName('p', 4294967295u), "p4294967295");
}

TEST(MediaRef, StoredFormIsSevenBytesAndKeepsThePath) {
  MediaRef media(3, 0x1234, 0x00100123);
  Bytes bytes = testing::StoreObject(media);
  EXPECT_EQ(bytes, (Bytes{0x03, 0x34, 0x12, 0x23, 0x01, 0x10, 0x00}));
  MediaRef back;
  back.path = "kept";
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(back.kind, 3u);
  EXPECT_EQ(back.folder, 0x1234u);
  EXPECT_EQ(back.resource, 0x00100123u);
  EXPECT_EQ(back.path, "kept");
}

TEST(MediaRef, GlossaryPattern) {
  EXPECT_EQ(GlossaryMediaPattern(kPathUnc, kUnc), kUnc + "C0000\\r0001001\\Q%d\\%03d\\%02d.swf");
  EXPECT_EQ(GlossaryMediaPattern(kPathUrl, kUrl), kUrl + "C0000/r0001001/Q%d/%03d/%02d.swf");
  EXPECT_EQ(GlossaryMediaPattern(kPathLocal, kUrl), "");
}

}  // namespace
}  // namespace lumora
