#include <lumora/platform/archive.h>
#include <lumora/platform/archive_string.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/platform/stream.h>
#include <lumora/platform/typed_array.h>

#include <gtest/gtest.h>

namespace lumora {
namespace {

template <typename Fn>
std::vector<uint8_t> Store(Fn fn) {
  MemoryStream stream;
  Archive ar(stream, Archive::Mode::kStore);
  fn(ar);
  ar.Flush();
  return stream.bytes();
}

TEST(ArchiveString, LengthPrefixEscapes) {
  struct Case {
    size_t length;
    std::vector<uint8_t> prefix;
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
    auto bytes = Store([&](Archive& ar) { WriteArchiveString(ar, text); });
    ASSERT_EQ(bytes.size(), c.prefix.size() + c.length) << c.length;
    EXPECT_TRUE(std::equal(c.prefix.begin(), c.prefix.end(), bytes.begin())) << c.length;
    MemoryStream in(bytes);
    Archive load(in, Archive::Mode::kLoad);
    EXPECT_EQ(ReadArchiveString(load), text);
  }
}

}  // namespace
}  // namespace lumora
