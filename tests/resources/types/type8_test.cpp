#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type8.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>

#include <filesystem>

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

constexpr uint32_t kId = 0x00100123;  // course 1, resource 291

TEST(Type8Resource, StoredFormPutsTheKeyBeforeTheQuestions) {
  Type8Resource resource;
  resource.resourceId = kId;
  resource.groupKey = 9;
  resource.items.AddNew().question = testing::PlainMarkedText(u"Q");
  const Bytes empty_typed16 = Concat({U32(16), U32(0), U32(0)});
  const Bytes empty_typed24 = Concat({U32(24), U32(0), U32(0)});
  const Bytes expected = Concat({testing::ResourceHead(kId),
                                 U32(8),
                                 {9},
                                 U32(1),
                                 {0xE4, 0x04},
                                 U32(1),
                                 {'Q', 0},
                                 empty_typed16,
                                 empty_typed24,
                                 U32(0),
                                 U32(0)});
  EXPECT_EQ(testing::StoreObject(resource), expected);
}

TEST(Type8Resource, RoundTripKeepsEveryField) {
  Type8Resource resource = testing::RichType8();
  const Bytes bytes = testing::StoreObject(resource);
  Type8Resource back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(testing::StoreObject(back), bytes);
  EXPECT_EQ(back.groupKey, 4);
  ASSERT_EQ(back.records.size(), 1u);
  EXPECT_EQ(back.records[0], LinkRecord16(3, 1003, 0, 12));
  ASSERT_EQ(back.items.size(), 2u);
  const VideoQuestion& first = back.items[0];
  EXPECT_EQ(first.question.text.view(), u"Why?");
  EXPECT_EQ(first.question.records16[0], LinkRecord16(0, 1003, 2, 12));
  EXPECT_EQ(first.question.records24[0].bytes[2], 7);
  EXPECT_EQ(first.firstTexts[0].text.view(), u"Because");
  ASSERT_EQ(first.secondTexts.size(), 2u);
  EXPECT_EQ(first.secondTexts[1].text.view(), u"Always");
  EXPECT_EQ(back.items[1].question.text.view(), u"Who?");
  EXPECT_TRUE(back.items[1].firstTexts.empty());
}

// A content root holding video resources of course 1 and the files that go with them.
class Type8Media : public ::testing::Test {
 protected:
  void PutVideoResource(uint32_t number, std::initializer_list<const char16_t*> paragraphs) {
    Type1003Resource video;
    for (const char16_t* text : paragraphs) {
      video.script.paragraphs.Add(std::make_unique<MarkedText>(testing::PlainMarkedText(text)));
    }
    testing::WriteResource(root(), 0x00100000 | number, video);
  }
  std::string Put(const std::string& relative) {
    return dir_.Write("C0001/r0001003/" + relative, relative);
  }
  std::string PathOf(const std::string& relative) const {
    return root() + "C0001/r0001003/" + relative;
  }
  std::string Verify(Type8Resource& resource, std::initializer_list<uint8_t> qs, bool* ok) {
    std::string report = "old";
    *ok = resource.VerifyMedia(root(), QualityFolderList(qs), report, kId);
    return report;
  }
  const std::string& root() const { return dir_.path(); }

  testing::TempDir dir_;
};

TEST_F(Type8Media, NoLinksAtAllIsTheOnlyLine) {
  Type8Resource resource;
  resource.items.AddNew().question.records16.Add(LinkRecord16(3, 1003, 5, 12));
  bool ok = true;
  EXPECT_EQ(Verify(resource, {1}, &ok), "\t\tLinks not found for Item: 1048867!\n");
  EXPECT_FALSE(ok);
}

TEST_F(Type8Media, VideoLinkReportsBothVideoNamesAndEachMissingPicture) {
  PutVideoResource(12, {u"One"});
  Put("Q1/p0000012.swf");
  Type8Resource resource;
  resource.records.Add(LinkRecord16(3, 1003, 0, 12));
  resource.records.Add(LinkRecord16(3, 1003, 1, 13));  // not a resource-level video link
  resource.records.Add(LinkRecord16(2, 1003, 0, 14));
  bool ok = true;
  const std::string video = PathOf("Q3/v0000012");
  EXPECT_EQ(Verify(resource, {1, 2, 3}, &ok),
            "\t\tFile not found: " + video + ".avi!\n" + "\t\tFile not found: " + video +
                ".mpg!\n" + "\t\tFile not found: " + PathOf("Q2/p0000012.swf") + "\n" +
                "\t\tFile not found: " + PathOf("Q3/p0000012.swf") + "\n");
  EXPECT_FALSE(ok);

  for (const char* extension : {".mpg", ".avi"}) {  // either video will do
    std::filesystem::remove_all(root() + "C0001/r0001003/Q3");
    Put(std::string("Q3/v0000012") + extension);
    Put("Q3/p0000012.swf");
    EXPECT_EQ(Verify(resource, {1, 3}, &ok), "") << extension;
    EXPECT_TRUE(ok);
  }
}

TEST_F(Type8Media, ItemLinksNeedAReadableVideoWithAFilledParagraph) {
  PutVideoResource(12, {u"One", u"", u"Three"});
  Type8Resource resource;
  resource.records.Add(LinkRecord16(1, 1005, 0, 1));  // links exist, none of them to a video
  MarkedText& first = resource.items.AddNew().question;
  first.records16.Add(LinkRecord16(0, 1003, 1, 12));  // fine
  first.records16.Add(LinkRecord16(3, 1003, 2, 12));  // empty
  first.records16.Add(LinkRecord16(3, 1003, 4, 12));  // beyond the three paragraphs
  first.records16.Add(LinkRecord16(3, 1005, 9, 12));  // not a video: ignored
  MarkedText& second = resource.items.AddNew().question;
  second.records16.Add(LinkRecord16(3, 1003, 1, 13));  // no such video
  second.records16.Add(LinkRecord16(3, 1003, 0, 12));  // paragraphs count from 1
  bool ok = true;
  EXPECT_EQ(Verify(resource, {1}, &ok),
            "\t\tParagraph n\xB0"
            "2 of video 12 is empty for Item: 1048867\n"
            "\t\tParagraph n\xB0"
            "4 of video 12 does not exist for Item: 1048867\n"
            "\t\tCan not open: " +
                PathOf("r0000013.ars") +
                "!\n"
                "\t\tParagraph n\xB0"
                "0 of video 12 does not exist for Item: 1048867\n");
  EXPECT_FALSE(ok);
}

class Type8Copy : public Type8Media {
 protected:
  bool Copy(Type8Resource& resource, std::initializer_list<uint8_t> qs) {
    return resource.CopyMedia(destination_.path(), kId, QualityFolderList(qs), root());
  }
  std::string Copied(const std::string& relative) const {
    const std::string path = destination_.path() + "C0001/r0001003/" + relative;
    return FileExists(path) ? destination_.Read("C0001/r0001003/" + relative) : "(none)";
  }

  testing::TempDir destination_;
};

TEST_F(Type8Copy, AviIsPreferredAndGoesToQ3WithTheFileAndPictures) {
  PutVideoResource(12, {u"One"});
  PutVideoResource(13, {u"One"});
  for (const char* file : {"Q3/v0000012.avi", "Q3/v0000012.mpg", "Q1/v0000012.avi",
                           "Q1/p0000012.swf", "Q3/p0000012.swf", "Q3/v0000013.mpg"}) {
    Put(file);
  }
  destination_.Write("C0001/r0001003/Q1/p0000012.swf", "old");
  Type8Resource resource;
  resource.records.Add(LinkRecord16(3, 1003, 0, 12));
  resource.records.Add(LinkRecord16(3, 1003, 0, 13));
  ASSERT_TRUE(Copy(resource, {1, 2}));
  EXPECT_EQ(Copied("Q3/v0000012.avi"), "Q3/v0000012.avi");
  EXPECT_EQ(Copied("Q3/v0000012.mpg"), "(none)");
  EXPECT_EQ(Copied("Q1/v0000012.avi"), "(none)");
  EXPECT_EQ(Copied("Q1/p0000012.swf"), "Q1/p0000012.swf");  // replaced
  EXPECT_EQ(Copied("Q2/p0000012.swf"), "(none)");
  EXPECT_EQ(Copied("Q3/p0000012.swf"), "(none)");  // Q3 is not a listed quality folder
  EXPECT_EQ(Copied("Q3/v0000013.mpg"), "Q3/v0000013.mpg");
  EXPECT_EQ(dir_.Read("C0001/r0001003/r0000013.ars"),
            destination_.Read("C0001/r0001003/r0000013.ars"));
}

TEST_F(Type8Copy, NoLinksNoVideoOrAnUncreatableFolderFail) {
  Type8Resource resource;
  EXPECT_FALSE(Copy(resource, {1}));
  resource.records.Add(LinkRecord16(1, 1005, 0, 1));
  EXPECT_TRUE(Copy(resource, {1}));  // links, but none to a video: nothing to copy
  EXPECT_TRUE(std::filesystem::is_empty(destination_.path()));

  resource.records.Add(LinkRecord16(3, 1003, 0, 12));
  PutVideoResource(12, {u"One"});
  EXPECT_FALSE(Copy(resource, {1}));  // neither video exists
  Put("Q3/v0000012.mpg");
  EXPECT_TRUE(Copy(resource, {1}));
  std::filesystem::remove_all(destination_.path() + "C0001");
  destination_.Write("C0001", "a file where the course folder belongs");
  EXPECT_FALSE(Copy(resource, {1}));
}

}  // namespace
}  // namespace lumora
