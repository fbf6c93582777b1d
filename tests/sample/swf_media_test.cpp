#include <lumora/sample/swf_media.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "sample/swf_reading.h"

namespace lumora::sample {
namespace {

using testing::Outline;
using testing::Point;
using testing::ReadShapeOutlines;
using testing::ReadSwf;
using testing::SwfRead;

constexpr uint16_t kEnd = 0, kShowFrame = 1, kDefineShape = 2, kBackground = 9, kDefineSound = 14,
                   kStartSound = 15, kPlaceObject2 = 26;

std::vector<uint16_t> Codes(const SwfRead& swf) {
  std::vector<uint16_t> codes;
  for (const auto& tag : swf.tags) codes.push_back(tag.code);
  return codes;
}

std::vector<Outline> Outlines(const SwfRead& swf) {
  std::vector<Outline> outlines;
  for (const auto& tag : swf.tags) {
    if (tag.code != kDefineShape) continue;
    for (Outline& outline : ReadShapeOutlines(tag.body)) outlines.push_back(outline);
  }
  return outlines;
}

TEST(SwfMedia, EachKindIsAOneFrameMovieWithItsTagsInPlayingOrder) {
  const uint16_t picture[] = {kBackground,   kDefineShape, kDefineShape, kPlaceObject2,
                              kPlaceObject2, kShowFrame,   kEnd};
  const uint16_t tone[] = {kBackground, kDefineSound, kStartSound, kShowFrame, kEnd};
  const uint16_t clip[] = {kBackground,  kDefineShape, kDefineShape, kPlaceObject2, kPlaceObject2,
                           kDefineSound, kStartSound,  kShowFrame,   kEnd};
  for (const auto& [bytes, codes] :
       {std::pair{SwfPicture(7), std::vector<uint16_t>(std::begin(picture), std::end(picture))},
        std::pair{SwfTone(7), std::vector<uint16_t>(std::begin(tone), std::end(tone))},
        std::pair{SwfClip(7), std::vector<uint16_t>(std::begin(clip), std::end(clip))}}) {
    const SwfRead swf = ReadSwf(bytes);
    ASSERT_EQ(swf.signature, "FWS");
    EXPECT_EQ(swf.fileLength, bytes.size());
    EXPECT_EQ(swf.frames, 1);
    EXPECT_EQ(swf.frameRate, 12 << 8);
    EXPECT_EQ(swf.rect[1], 160 * 20);
    EXPECT_EQ(swf.rect[3], 120 * 20);
    EXPECT_EQ(Codes(swf), codes);
  }
}

// A renderer fills an outline only when it comes back to where it started; both shapes must
// stay on the stage.
TEST(SwfMedia, ThePictureOutlinesCloseInsideTheStage) {
  const std::vector<Outline> outlines = Outlines(ReadSwf(SwfPicture(3)));
  ASSERT_EQ(outlines.size(), 2u);
  EXPECT_EQ(outlines[0].points.size(), 5u);  // the card's four corners and back
  EXPECT_EQ(outlines[1].points.size(), 9u);  // the disc's eight curves and back
  for (const Outline& outline : outlines) {
    EXPECT_EQ(outline.points.front(), outline.points.back());
    for (const Point& p : outline.points) {
      EXPECT_TRUE(p.x >= 0 && p.x <= 3200 && p.y >= 0 && p.y <= 2400) << p.x << "," << p.y;
    }
  }
  EXPECT_NE(outlines[0].colour, outlines[1].colour);
}

TEST(SwfMedia, NeighbouringPicturesAndTonesDiffer) {
  EXPECT_NE(Outlines(ReadSwf(SwfPicture(1)))[0].colour, Outlines(ReadSwf(SwfPicture(2)))[0].colour);
  EXPECT_NE(SwfTone(1), SwfTone(2));
  EXPECT_EQ(SwfTone(1), SwfTone(1));
}

// Uncompressed little-endian 16-bit mono at 5,512 Hz (format byte 0011 00 1 0), 0.3 s long,
// loud in the middle and silent at both ends.
TEST(SwfMedia, TheToneIsASoundOfAThirdOfASecondThatFadesInAndOut) {
  const SwfRead swf = ReadSwf(SwfTone(0));
  const std::string& sound = swf.tags[1].body;
  ASSERT_GE(sound.size(), 7u);
  EXPECT_EQ(static_cast<uint8_t>(sound[2]), 0x32);
  const uint32_t count = static_cast<uint8_t>(sound[3]) | static_cast<uint8_t>(sound[4]) << 8;
  EXPECT_EQ(count, 1653u);
  ASSERT_EQ(sound.size(), 7 + 2 * count);
  auto sample = [&](size_t i) {
    return static_cast<int16_t>(static_cast<uint8_t>(sound[7 + 2 * i]) |
                                static_cast<uint8_t>(sound[8 + 2 * i]) << 8);
  };
  int peak = 0;
  for (size_t i = count / 3; i < 2 * count / 3; ++i) peak = std::max(peak, std::abs(sample(i)));
  EXPECT_GT(peak, 10000);
  EXPECT_LT(std::abs(sample(0)) + std::abs(sample(count - 1)), 100);
  EXPECT_EQ(swf.tags[2].body, std::string("\x03\x00\x00", 3));  // StartSound of sound 3, once
}

}  // namespace
}  // namespace lumora::sample
