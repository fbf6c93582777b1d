#include <lumora/platform/codepage.h>
#include <lumora/platform/codepage_stream.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace lumora {
namespace {

using Direction = CodePageStream::Direction;

struct Converted {
  std::string out;
  uint64_t substitutions;
};

// The whole input through one stream, in blocks of `piece` bytes.
Converted InPieces(uint32_t codePage, Direction direction, std::string_view in, size_t piece) {
  CodePageStream stream(codePage, direction);
  Converted result;
  for (size_t at = 0; at < in.size(); at += piece) {
    stream.Convert(in.substr(at, piece), false, result.out);
  }
  stream.Convert({}, true, result.out);
  result.substitutions = stream.substitutions();
  return result;
}

TEST(CodePageStream, CharactersSplitBetweenBlocksConvertWhole) {
  const std::string japanese = EncodeCodePage(u"日本語のテキスト abc", 932);
  const std::string russian = "Привет, мир";
  for (size_t piece : {1, 2, 3, 5, 64}) {
    const Converted decoded = InPieces(932, Direction::kDecode, japanese, piece);
    EXPECT_EQ(decoded.out, "日本語のテキスト abc") << piece;
    EXPECT_EQ(decoded.substitutions, 0u) << piece;
    const Converted encoded = InPieces(1251, Direction::kEncode, russian, piece);
    EXPECT_EQ(encoded.out, "\xCF\xF0\xE8\xE2\xE5\xF2, \xEC\xE8\xF0") << piece;
    EXPECT_EQ(encoded.substitutions, 0u) << piece;
  }
}

TEST(CodePageStream, EachReplacementIsCountedOnce) {
  struct Case {
    uint32_t codePage;
    Direction direction;
    std::string in;
    std::string out;
    uint64_t substitutions;
  };
  const Case cases[] = {
      {1252, Direction::kDecode, std::string("\0\x81\xE9\0", 4), std::string("\0\u0081é\0", 6), 0},
      {932, Direction::kDecode, "a\x93", "a\uFFFD", 1},  // a lead byte at the very end
      {932, Direction::kDecode, "\x81 ", "\uFFFD ", 1},  // a lead byte without its trail
      {1253, Direction::kDecode, "\xFF\xFF", "\uFFFD\uFFFD", 2},
      {1252, Direction::kEncode, "x\xFF\xFEy", "x??y", 2},
      {1252, Direction::kEncode, "x\xE2\x82", "x?", 1},  // cut short at the very end
      {1252, Direction::kEncode, "\uFFFD Ж 😀", "? ? ?", 3},
      {1252, Direction::kEncode, "ＡＢＣ", "ABC", 0},  // best fits are no replacement
  };
  for (const Case& c : cases) {
    const Converted converted = InPieces(c.codePage, c.direction, c.in, 1);
    EXPECT_EQ(converted.out, c.out) << c.codePage << " " << c.in;
    EXPECT_EQ(converted.substitutions, c.substitutions) << c.codePage << " " << c.in;
  }
}

}  // namespace
}  // namespace lumora
