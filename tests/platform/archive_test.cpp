#include <lumora/platform/archive.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::StoreWith;

TEST(ArchiveString, LengthPrefixEscapes) {
  struct Case {
    size_t length;
    Bytes prefix;
  };
  const Case cases[] = {
      {0, {0x00}},
      {254, {0xFE}},
      {255, {0xFF, 0xFF, 0x00}},
      {300, {0xFF, 0x2C, 0x01}},
      {0xFFFD, {0xFF, 0xFD, 0xFF}},
      {0xFFFE, {0xFF, 0xFF, 0xFF, 0xFE, 0xFF, 0x00, 0x00}},
      {70000, {0xFF, 0xFF, 0xFF, 0x70, 0x11, 0x01, 0x00}},
  };
  for (const auto& c : cases) {
    std::string text(c.length, 'x');
    Bytes bytes = StoreWith([&](Archive& ar) { WriteArchiveString(ar, text); });
    ASSERT_EQ(bytes.size(), c.prefix.size() + c.length) << c.length;
    EXPECT_TRUE(std::equal(c.prefix.begin(), c.prefix.end(), bytes.begin())) << c.length;
    MemoryStream in(bytes);
    Archive load(in, Archive::Mode::kLoad);
    EXPECT_EQ(ReadArchiveString(load), text);
  }
}

TEST(ArchiveString, TruncatedOrAbsurdLengthIsEndOfFile) {
  const Bytes cases[] = {
      {0x05, 'a', 'b'},                            // five promised, two present
      {0xFF, 0x2C},                                // u16 length cut short
      {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF},  // 4 GiB promised
  };
  for (const auto& bytes : cases) {
    MemoryStream in(bytes);
    Archive ar(in, Archive::Mode::kLoad);
    try {
      ReadArchiveString(ar);
      ADD_FAILURE() << "no error for " << bytes.size() << " bytes";
    } catch (const ArchiveError& e) {
      EXPECT_EQ(e.kind(), ArchiveError::Kind::kEndOfFile);
    }
  }
}

TEST(StringArray, CountEscapeAndRoundTrip) {
  StringArray small;
  small.items = {"one", "", std::string(300, 'z')};
  Bytes bytes = testing::StoreObject(small);
  EXPECT_EQ((Bytes{bytes.begin(), bytes.begin() + 6}), (Bytes{0x03, 0x00, 0x03, 'o', 'n', 'e'}));
  StringArray back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(back.items, small.items);

  StringArray large;
  large.items.assign(0xFFFF, "a");
  bytes = testing::StoreObject(large);
  EXPECT_EQ((Bytes{bytes.begin(), bytes.begin() + 6}), (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00}));
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(back.items.size(), 0xFFFFu);
}

TEST(Archive, WritesLargerThanTheBufferKeepTheirOrder) {
  Bytes big(10000);
  for (size_t i = 0; i < big.size(); ++i) big[i] = static_cast<uint8_t>(i * 7);
  Bytes bytes = StoreWith([&](Archive& ar) {
    ar.WriteU8(1);
    ar.Write(big.data(), big.size());
    ar.WriteU32(0xA1B2C3D4);
  });
  ASSERT_EQ(bytes.size(), 1 + big.size() + 4);
  EXPECT_EQ(bytes[0], 1);
  EXPECT_TRUE(std::equal(big.begin(), big.end(), bytes.begin() + 1));
  EXPECT_EQ((Bytes{bytes.end() - 4, bytes.end()}), (Bytes{0xD4, 0xC3, 0xB2, 0xA1}));

  MemoryStream in(bytes);
  Archive ar(in, Archive::Mode::kLoad);
  EXPECT_EQ(ar.ReadU8(), 1);
  Bytes back(big.size());
  ar.Read(back.data(), back.size());
  EXPECT_EQ(back, big);
  EXPECT_EQ(ar.ReadU32(), 0xA1B2C3D4u);
  EXPECT_THROW(ar.ReadU8(), ArchiveError);
}

}  // namespace
}  // namespace lumora
