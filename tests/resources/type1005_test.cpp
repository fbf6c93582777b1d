#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type1005_index.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "resources/resource_builders.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::ResourceHead;
using testing::U32;

const Bytes kEmptyBytes = Concat({U32(1), U32(0), U32(0)});

TEST(ContentElement, ReferenceStoresOnlyHeadReferenceAndFlag) {
  auto element = testing::FullElement(u"ignored", 5);
  element->isReference = true;
  element->reference = 0x00100007;
  element->resourceId = 3;
  EXPECT_EQ(testing::StoreObject(*element), Concat({ResourceHead(3), U32(0x00100007), {1}}));
}

TEST(ContentElement, FullStoredFormOrder) {
  auto element = testing::FullElement(u"Hi", 0x00100009);
  element->reference = 0x00100007;
  element->note = "n";
  element->firstAttributes.Add(5);
  const Bytes expected = Concat({ResourceHead(0),
                                 U32(0x00100007),
                                 {0},
                                 {2, 0xED, 0x03, 0x09, 0x00, 0x10, 0x00},  // picture in 1005
                                 {0xE4, 0x04},
                                 U32(2),
                                 {'H', 0, 'i', 0},
                                 U32(16),
                                 U32(0),
                                 U32(0),  // text's 16-byte records
                                 U32(24),
                                 U32(0),
                                 U32(0),  // text's 24-byte records
                                 U32(0),
                                 {0},  // no translations
                                 {1, 'n'},
                                 U32(1),
                                 U32(1),
                                 U32(0),
                                 {5},
                                 kEmptyBytes});
  EXPECT_EQ(testing::StoreObject(*element), expected);

  ContentElement back;
  ASSERT_TRUE(testing::LoadObject(expected, back));
  EXPECT_EQ(back.text.text.view(), u"Hi");
  EXPECT_EQ(back.media.resource, 0x00100009u);
  EXPECT_EQ(back.note, "n");
  EXPECT_EQ(testing::StoreObject(back), expected);
}

TEST(ContentElement, LongNoteTakesTheWideLengthPrefix) {
  ContentElement element;
  element.note = std::string(300, 'x');
  const Bytes bytes = testing::StoreObject(element);
  const size_t at = ResourceHead(0).size() + 5 + 7 + 30 +
                    5;  // head, reference and flag, medium, text, translations
  ASSERT_GT(bytes.size(), at + 3);
  EXPECT_EQ(Bytes(bytes.begin() + at, bytes.begin() + at + 3), (Bytes{0xFF, 0x2C, 0x01}));
  ContentElement back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(back.note, element.note);
}

TEST(ContentElement, OnlyByteOneMarksAReference) {
  auto element = testing::FullElement(u"Hi", 0x00100009, u"Salut", 4);
  Bytes bytes = testing::StoreObject(*element);
  const size_t flag_at = ResourceHead(0).size() + 4;
  for (uint8_t flag : {2, 0xFF}) {
    bytes[flag_at] = flag;
    ContentElement back;
    ASSERT_TRUE(testing::LoadObject(bytes, back)) << int{flag};
    EXPECT_FALSE(back.isReference);
    EXPECT_EQ(back.text.text.view(), u"Hi");
    EXPECT_EQ(back.translations.Lookup(9).text.view(), u"Salut");
  }
  bytes[flag_at] = 1;
  ContentElement reference;
  EXPECT_FALSE(testing::LoadObject(bytes, reference));  // the content is left over
  EXPECT_TRUE(reference.isReference);
}

// The index entry's first byte holds flag A in bit 0 and flag B in bit 1, nothing else; a
// loaded byte is read by bit tests, so other bits are dropped when it is stored again.
TEST(Type1005Index, EntryFlagsAreBitsZeroAndOne) {
  const struct {
    bool a, b;
    uint8_t stored;
  } cases[] = {{false, false, 0x00}, {true, false, 0x01}, {false, true, 0x02}, {true, true, 0x03}};
  for (const auto& c : cases) {
    Type1005Entry entry;
    entry.flagA = c.a;
    entry.flagB = c.b;
    entry.values.Add(7);
    const Bytes expected = Concat({{c.stored}, U32(1), U32(1), U32(0), {7}});
    EXPECT_EQ(testing::StoreObject(entry), expected) << int{c.stored};
    Type1005Entry back;
    ASSERT_TRUE(testing::LoadObject(expected, back));
    EXPECT_EQ(back.flagA, c.a);
    EXPECT_EQ(back.flagB, c.b);
  }
  Type1005Entry high_bits;
  ASSERT_TRUE(testing::LoadObject(Concat({{0xFE}, kEmptyBytes}), high_bits));
  EXPECT_FALSE(high_bits.flagA);
  EXPECT_TRUE(high_bits.flagB);
  EXPECT_EQ(testing::StoreObject(high_bits), Concat({{0x02}, kEmptyBytes}));
}

class ContentElementMedia : public ::testing::Test {
 protected:
  void SetUp() override {
    stored_ = testing::FullElement(u"Stored", 0x00100009, u"Salut");
    testing::WriteResource(dir_.path(), 0x00100009, *stored_);
    dir_.Write("C0001/r0001005/Q2/p0000009.swf", "m");
  }

  ContentRequest Request(uint32_t path_kind) {
    ContentRequest request;
    request.pathKind = path_kind;
    request.mediaOrder = 1;
    return request;
  }

  testing::TempDir dir_;
  std::unique_ptr<ContentElement> stored_;
};

TEST_F(ContentElementMedia, ReferenceIsExpandedAndItsMediumResolved) {
  const struct {
    uint32_t path_kind;
    std::string root;
    std::string expected;
  } cases[] = {
      {kPathUrl, "http://h/", "http://h/C0001/r0001005/Q2/p0000009.swf"},
      {kPathUnc, "\\\\s\\c\\", "\\\\s\\c\\C0001\\r0001005\\Q2\\p0000009.swf"},
      {kPathLocal, "unused", ""},
  };
  for (const auto& c : cases) {
    auto element = testing::ReferenceElement(0x00100009);
    element->ResolveMedia(Request(c.path_kind), dir_.path(), c.root);
    EXPECT_FALSE(element->isReference);
    EXPECT_EQ(element->text.text.view(), u"Stored");
    EXPECT_EQ(element->translations.Lookup(9).text.view(), u"Salut");
    EXPECT_EQ(element->media.path, c.expected);
  }
}

TEST_F(ContentElementMedia, MissingReferenceAndMediumZeroLeaveNoPath) {
  auto missing = testing::ReferenceElement(0x00100008);
  missing->ResolveMedia(Request(kPathUrl), dir_.path(), "http://h/");
  EXPECT_TRUE(missing->isReference);
  EXPECT_EQ(missing->media.path, "");

  dir_.Write("C0000/r0001005/Q1/p0000000.swf", "m");
  ContentElement no_medium;
  no_medium.media = MediaRef(kMediaPicture, 1005, 0);
  no_medium.ResolveMedia(Request(kPathUrl), dir_.path(), "http://h/");
  EXPECT_EQ(no_medium.media.path, "");
}

TEST_F(ContentElementMedia, VerifyReportsOnlyAnOwnMediumThatIsMissing) {
  ByteArray q2;
  q2.Add(2);
  std::string report = "old";
  EXPECT_TRUE(stored_->VerifyMedia(dir_.path(), q2, report, 0x00100009));
  EXPECT_EQ(report, "");

  auto lost = testing::FullElement(u"Lost", 0x00100008);
  EXPECT_FALSE(lost->VerifyMedia(dir_.path(), q2, report, 0x00100008));
  EXPECT_EQ(report, "\t\tFile not found: " + dir_.path() + "C0001/r0001005/Q2/p0000008.swf!\n");

  const auto reference = testing::ReferenceElement(0x00100008);
  const auto no_medium = testing::FullElement(u"None");
  for (ContentElement* quiet : {reference.get(), no_medium.get()}) {
    report = "old";
    EXPECT_TRUE(quiet->VerifyMedia(dir_.path(), q2, report, 0x00100008));
    EXPECT_EQ(report, "");
  }
}

}  // namespace
}  // namespace lumora
