#include <lumora/resources/types/type1010.h>
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

constexpr uint32_t kId = 0x0010000A;

// An empty text with code page `cp` and no translations.
Bytes EmptyTextAndTranslations(uint8_t cp) {
  return Concat(
      {{cp, 0x04}, U32(0), U32(16), U32(0), U32(0), U32(24), U32(0), U32(0), U32(0), {0}});
}

TEST(Type1010Resource, StoredFormPutsThePictureBeforeTheLastText) {
  Type1010Resource resource;
  resource.resourceId = kId;
  resource.groupKey = 3;
  for (size_t i = 0; i < Type1010Resource::kTextCount; ++i) {
    resource.texts[i].text.codePage = static_cast<uint16_t>(0x04E0 + i);
  }
  resource.picture = MediaRef(kMediaPicture, 1010, 5);
  const Bytes expected = Concat({testing::ResourceHead(kId),
                                 U32(1010),
                                 {3},
                                 EmptyTextAndTranslations(0xE0),
                                 EmptyTextAndTranslations(0xE1),
                                 EmptyTextAndTranslations(0xE2),
                                 {2, 0xF2, 0x03},
                                 U32(5),
                                 EmptyTextAndTranslations(0xE3),
                                 U32(0)});
  EXPECT_EQ(testing::StoreObject(resource), expected);
}

TEST(Type1010Resource, RoundTripKeepsEveryField) {
  Type1010Resource resource = testing::RichType1010();
  const Bytes bytes = testing::StoreObject(resource);
  Type1010Resource back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(testing::StoreObject(back), bytes);
  EXPECT_EQ(back.groupKey, 6);
  EXPECT_EQ(back.texts[3].text.text.view(), u"Fourth");
  EXPECT_EQ(back.texts[3].translations.KeyAt(0), 12);
  EXPECT_EQ(back.picture.resource, kId);
  ASSERT_EQ(back.moreTexts.size(), 2u);
  EXPECT_EQ(back.moreTexts[0].text.view(), u"More");
}

class Type1010Media : public ::testing::Test {
 protected:
  std::string Verify(std::initializer_list<uint8_t> qs, bool* ok) {
    std::string report = "old";
    *ok = resource_.VerifyMedia(dir_.path(), QualityFolderList(qs), report, kId);
    return report;
  }
  std::string PathOf(const std::string& relative) const {
    return dir_.path() + "C0001/r0001010/" + relative;
  }

  testing::TempDir dir_;
  Type1010Resource resource_ = testing::RichType1010();
};

TEST_F(Type1010Media, NoPictureIsReportedAndCopiesNothing) {
  resource_.picture = MediaRef();
  bool ok = true;
  EXPECT_EQ(Verify({1}, &ok),
            "\t\tNo picture found for Item n\xB0"
            "1048586!\n");
  EXPECT_FALSE(ok);
  testing::TempDir destination;
  EXPECT_FALSE(resource_.CopyMedia(destination.path(), kId, QualityFolderList({1}), dir_.path()));
}

TEST_F(Type1010Media, PictureMustBeFoundAndHaveItsQ3Copy) {
  bool ok = true;
  EXPECT_EQ(Verify({2, 1}, &ok), "\t\tFile not found: " + PathOf("Q2/p0000010.swf") + "!\n" +
                                     "File not found: " + PathOf("Q3/p0000010.swf") + "!\n");
  EXPECT_FALSE(ok);

  dir_.Write("C0001/r0001010/Q1/p0000010.swf", "q1");
  EXPECT_EQ(Verify({1}, &ok), "File not found: " + PathOf("Q3/p0000010.swf") + "!\n");
  dir_.Write("C0001/r0001010/Q3/p0000010.swf", "q3");
  EXPECT_EQ(Verify({1}, &ok), "");
  EXPECT_TRUE(ok);

  ContentRequest request;
  request.pathKind = kPathUrl;
  request.mediaOrder = 3;
  resource_.ResolveMedia(request, dir_.path(), "u/");
  EXPECT_EQ(resource_.picture.path, "u/C0001/r0001010/Q3/p0000010.swf");

  testing::TempDir destination;
  ASSERT_TRUE(resource_.CopyMedia(destination.path(), kId, QualityFolderList({1}), dir_.path()));
  EXPECT_EQ(destination.Read("C0001/r0001010/Q1/p0000010.swf"), "q1");
}

}  // namespace
}  // namespace lumora
