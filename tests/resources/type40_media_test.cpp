#include <lumora/resources/resource_files.h>
#include <lumora/resources/types/type40.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"

namespace lumora {
namespace {

constexpr uint32_t kId = 0x00100123;  // course 1, resource 291
const std::string kUrl = "http://h/";

ByteArray Folders(std::initializer_list<uint8_t> qs) {
  ByteArray folders;
  for (uint8_t q : qs) folders.Add(q);
  return folders;
}

TEST(Type40Media, ResolveReachesItemMediaContentsPartsAndElements) {
  testing::TempDir dir;
  for (const char* file :
       {"r0000040/Q1/p0000291.swf", "r0001005/Q1/p0000001.swf", "r0001005/Q1/p0000002.swf",
        "r0001005/Q1/p0000003.swf", "r0001005/Q1/p0000004.swf"}) {
    dir.Write(std::string("C0001/") + file, "m");
  }
  auto stored = testing::FullElement(u"Stored", 0x00100004);
  testing::WriteResource(dir.path(), 0x00100044, *stored);

  Type40Resource resource;
  ExerciseItem& item = testing::AddItem(resource, {0x00100044});
  item.media.Add(std::make_unique<MediaRef>(kMediaPicture, 40, kId));
  item.content = *testing::FullElement(u"", 0x00100001);
  item.firstParts[0].content = *testing::FullElement(u"", 0x00100002);
  testing::AddPart(item.secondParts, {}).elements.Add(testing::FullElement(u"", 0x00100003));

  ContentRequest request;
  request.pathKind = kPathUrl;
  request.mediaOrder = 1;
  resource.ResolveMedia(request, dir.path(), kUrl);
  const std::string folder = kUrl + "C0001/r0001005/Q1/";
  EXPECT_EQ(item.media[0].path, kUrl + "C0001/r0000040/Q1/p0000291.swf");
  EXPECT_EQ(item.content.media.path, folder + "p0000001.swf");
  EXPECT_EQ(item.firstParts[0].content.media.path, folder + "p0000002.swf");
  EXPECT_EQ(item.secondParts[0].elements[0].media.path, folder + "p0000003.swf");
  const ContentElement& expanded = item.firstParts[0].elements[0];
  EXPECT_EQ(expanded.text.text.view(), u"Stored");
  EXPECT_EQ(expanded.media.path, folder + "p0000004.swf");
}

TEST(Type40Media, VerifyReportsNoItemsWithTheDegreeByte) {
  Type40Resource resource;
  std::string report = "old";
  EXPECT_FALSE(resource.VerifyMedia("/nowhere/", Folders({1}), report, kId));
  EXPECT_EQ(report,
            "\t\tNo media found for Item n\xB0"
            "1048867!\n");
}

TEST(Type40Media, VerifyReportsMissingReferencedFilesInOrder) {
  testing::TempDir dir;
  ContentElement stored;
  testing::WriteResource(dir.path(), 0x00100001, stored);
  auto missing = [&](uint32_t id) {
    return "\t\tFile not found: " + ResourceFilePath(dir.path(), 1005, id) + "\n!";
  };

  Type40Resource resource;
  ExerciseItem& first = testing::AddItem(resource, {0x00100001, 0x00100002}, {0x00100003});
  first.content.reference = 0x00100001;
  first.secondParts[0].content.reference = 0x00100004;
  ExerciseItem& second = testing::AddItem(resource, {});
  second.content.reference = 0x00100005;
  std::string report = "old";
  EXPECT_FALSE(resource.VerifyMedia(dir.path(), Folders({1}), report, kId));
  EXPECT_EQ(report,
            missing(0x00100002) + missing(0x00100003) + missing(0x00100004) + missing(0x00100005));

  Type40Resource clean;
  testing::AddItem(clean, {0x00100001}).content.reference = 0x00100001;
  EXPECT_TRUE(clean.VerifyMedia(dir.path(), Folders({1}), report, kId));
  EXPECT_EQ(report, "");
  clean.items[0].content.reference = 0;  // an item's own reference is checked even when 0
  EXPECT_FALSE(clean.VerifyMedia(dir.path(), Folders({1}), report, kId));
  EXPECT_EQ(report, missing(0));
}

TEST(Type40Media, VerifyStopsLookingUpAVideoOnceFound) {
  testing::TempDir dir;
  for (const char* file :
       {"Q1/v0000291.mpg", "Q3/v0000291.mpg", "Q1/p0000291.swf", "Q3/p0000291.swf"}) {
    dir.Write(std::string("C0001/r0000040/") + file, "m");
  }
  ContentElement stored;
  testing::WriteResource(dir.path(), 0x00100001, stored);
  Type40Resource resource;
  ExerciseItem& item = testing::AddItem(resource, {});
  item.content.reference = 0x00100001;
  item.media.Add(std::make_unique<MediaRef>(kMediaVideo, 40, kId));
  item.media.Add(std::make_unique<MediaRef>(kMediaPicture, 40, kId));
  std::string report;
  EXPECT_TRUE(resource.VerifyMedia(dir.path(), Folders({1, 3}), report, kId));
  EXPECT_EQ(item.media[0].path, dir.path() + "C0001\\r0000040\\Q1\\v0000291.mpg");
  EXPECT_EQ(item.media[1].path, dir.path() + "C0001\\r0000040\\Q3\\p0000291.swf");
}

class Type40Copy : public ::testing::Test {
 protected:
  void Put(const std::string& relative, const std::string& bytes) {
    source_.Write("C0001/" + relative, bytes);
  }
  bool Exists(const std::string& relative) {
    return FileExists(destination_.path() + "C0002/r0000040/" + relative);
  }
  std::string Read(const std::string& relative) {
    return destination_.Read("C0002/r0000040/" + relative);
  }
  bool Copy(Type40Resource& resource, std::initializer_list<uint8_t> qs) {
    return resource.CopyMedia(destination_.path(), 0x00200005, Folders(qs), source_.path());
  }

  testing::TempDir source_;
  testing::TempDir destination_;
};

TEST_F(Type40Copy, EachQualityFolderGetsWhatItsLookupFinds) {
  Put("r0000040/Q1/p0000291.swf", "q1");
  Put("r0000040/Q3/p0000291.swf", "q3");
  destination_.Write("C0002/r0000040/Q1/p0000291.swf", "old");
  Type40Resource resource;
  testing::AddItem(resource, {}).media.Add(std::make_unique<MediaRef>(kMediaPicture, 40, kId));
  ASSERT_TRUE(Copy(resource, {1, 2}));
  EXPECT_EQ(Read("Q1/p0000291.swf"), "q1");  // replaced
  EXPECT_EQ(Read("Q2/p0000291.swf"), "q3");  // selector 2 tries Q2, Q3, Q1
  EXPECT_FALSE(Exists("Q3/p0000291.swf"));
}

TEST_F(Type40Copy, VideoGoesOnceToQ3AndPartMediaFollow) {
  Put("r0000040/Q1/v0000291.avi", "video");
  Put("r0000040/Q2/v0000291.mpg", "other video");
  Put("r0001005/Q2/p0000007.swf", "part");
  Put("r0001005/Q2/s0000008.swf", "element");
  Type40Resource resource;
  ExerciseItem& item = testing::AddItem(resource, {});
  item.media.Add(std::make_unique<MediaRef>(kMediaVideo, 40, kId));
  item.firstParts[0].content.media = MediaRef(kMediaPicture, 1005, 0x00100007);
  item.firstParts[0].elements.AddNew().media = MediaRef(kMediaSound, 1005, 0x00100008);
  ASSERT_TRUE(Copy(resource, {1, 2}));
  EXPECT_EQ(Read("Q3/v0000291.avi"), "video");
  EXPECT_FALSE(Exists("Q1/v0000291.avi"));
  EXPECT_FALSE(Exists("Q2/v0000291.avi"));
  EXPECT_FALSE(Exists("Q3/v0000291.mpg"));  // the lookup for Q2 is never made
  EXPECT_EQ(Read("Q1/p0000007.swf"), "part");
  EXPECT_EQ(Read("Q2/s0000008.swf"), "element");
}

TEST_F(Type40Copy, NoItemsOrAnUncreatableFolderFail) {
  Type40Resource resource;
  EXPECT_FALSE(Copy(resource, {1}));
  EXPECT_TRUE(std::filesystem::is_empty(destination_.path()));

  testing::AddItem(resource, {}).media.Add(std::make_unique<MediaRef>(kMediaPicture, 40, kId));
  EXPECT_TRUE(Copy(resource, {1}));  // a missing medium is skipped
  Put("r0000040/Q1/p0000291.swf", "q1");
  destination_.Write("C0002", "a file where the course folder belongs");
  EXPECT_FALSE(Copy(resource, {1}));
}

}  // namespace
}  // namespace lumora
