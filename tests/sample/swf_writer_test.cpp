#include <lumora/sample/swf_writer.h>

#include <gtest/gtest.h>

#include <string>

#include <lumora/sample/swf_shape.h>

namespace lumora::sample {
namespace {

std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (int v : values) bytes.push_back(static_cast<char>(v));
  return bytes;
}

// The classic 550 x 400 pixel stage: fifteen-bit fields, 0 11000 0 8000 in twips.
TEST(SwfMovie, AnEmptyOneFrameMovieHasTheHeaderRectAndTagsByteForByte) {
  SwfMovie movie(6, {0, 550 * kTwipsPerPixel, 0, 400 * kTwipsPerPixel}, 12);
  movie.ShowFrame();
  const std::string header = "FWS" + Bytes({6, 25, 0, 0, 0});  // version, file length
  const std::string rect = Bytes({0x78, 0x00, 0x05, 0x5F, 0x00, 0x00, 0x0F, 0xA0, 0x00});
  const std::string rateAndFrames = Bytes({0x00, 12, 1, 0});
  const std::string showFrameAndEnd = Bytes({0x40, 0x00, 0x00, 0x00});
  EXPECT_EQ(movie.Finish(), header + rect + rateAndFrames + showFrameAndEnd);
}

// Lengths up to 62 fit beside the code; from 63 on the six bits say 63 and a u32 follows.
TEST(SwfMovie, TagsSwitchToTheLongHeaderAtSixtyThreeBytes) {
  for (const auto& [length, head] :
       {std::pair{size_t{62}, Bytes({0xBE, 0x03})},
        std::pair{size_t{63}, Bytes({0xBF, 0x03, 63, 0, 0, 0})},
        std::pair{size_t{300}, Bytes({0xBF, 0x03, 0x2C, 0x01, 0, 0})}}) {
    SwfMovie movie(6, {0, 0, 0, 0}, 1);
    movie.Add(kSwfDefineSound, std::string(length, 'x'));
    const std::string bytes = movie.Finish();
    const size_t tags = 8 + 2 + 4;  // header, a rect of four one-bit fields, rate, frames
    EXPECT_EQ(bytes.substr(tags, head.size()), head) << length;
    EXPECT_EQ(bytes.size(), tags + head.size() + length + 2) << length;
    EXPECT_EQ(static_cast<uint8_t>(bytes[4]) | static_cast<uint8_t>(bytes[5]) << 8, bytes.size());
  }
}

TEST(SwfBits, SignedFieldsTakeTheirSignBitAndTwosComplement) {
  for (const auto& [value, width] : {std::pair{0, 1},
                                     {-1, 1},
                                     {1, 2},
                                     {-2, 2},
                                     {2, 3},
                                     {2047, 12},
                                     {-2048, 12},
                                     {2048, 13},
                                     {-2049, 13}}) {
    EXPECT_EQ(SignedWidth(value), width) << value;
  }
  SwfBits bits;
  bits.Unsigned(0b101, 3);
  bits.Signed(-3, 4);  // 1101
  bits.Align();
  bits.Unsigned(1, 1);
  EXPECT_EQ(bits.Bytes(), Bytes({0b10111010, 0b10000000}));
}

// A red square's top edge: bounds 0..20 twips in six-bit fields, one solid fill, no line
// styles, then one fill bit, a move to the origin with fill 1, a horizontal edge of 20, the end.
TEST(SwfShape, AShapeBodyPacksStylesAndEdgeRecords) {
  SwfShape shape(1, {0, 20, 0, 20}, {0xFF0000});
  shape.MoveTo(0, 0, 1);
  shape.LineTo(20, 0);
  EXPECT_EQ(shape.Body(), Bytes({0x01, 0x00,                    // id
                                 0x30, 0x0A, 0x00, 0xA0,        // bounds
                                 0x01, 0x00, 0xFF, 0x00, 0x00,  // one solid red fill
                                 0x00,                          // no line styles
                                 0x10,                          // 1 fill bit, 0 line bits
                                 0x14, 0x27, 0x41, 0x40, 0x00}));
}

}  // namespace
}  // namespace lumora::sample
