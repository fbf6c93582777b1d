// The container of a Flash movie as the sample writes it: the uncompressed "FWS" header with
// its bit-packed frame rectangle, then tags, each behind a short or long header. It knows
// nothing of what the tags say; swf_shape.h and swf_media.h fill them.
#pragma once

#include <cstdint>
#include <string>

namespace lumora::sample {

// Lengths and coordinates in the movie are twips, twenty to a pixel.
inline constexpr int32_t kTwipsPerPixel = 20;

// Tag codes of the tags the sample writes.
enum SwfTag : uint16_t {
  kSwfEnd = 0,
  kSwfShowFrame = 1,
  kSwfDefineShape = 2,
  kSwfSetBackgroundColor = 9,
  kSwfDefineSound = 14,
  kSwfStartSound = 15,
  kSwfPlaceObject2 = 26,
};

// Fields of whole bits, most significant bit first, the way the format packs rectangles and
// shape records. The last byte is padded with zero bits.
class SwfBits {
 public:
  void Unsigned(uint32_t value, int width);
  void Signed(int32_t value, int width);
  // Pads the current byte with zero bits, so that the next field starts a byte.
  void Align();
  // The bytes written so far, the last one padded.
  std::string Bytes() const;

 private:
  std::string bytes_;
  int used_ = 0;  // bits of the last byte of bytes_ already taken; 0 when it is full or absent
};

// Bits a signed field needs to hold `value`, sign included.
int SignedWidth(int32_t value);

// Bits an unsigned field needs to hold `value` (0 for 0).
int UnsignedWidth(uint32_t value);

struct SwfRect {
  int32_t xMin;
  int32_t xMax;
  int32_t yMin;
  int32_t yMax;
};

// The rectangle's fields: the width of its four values, then the values, byte-aligned.
void PutRect(SwfBits& bits, const SwfRect& rect);

void PutU16(std::string& out, uint16_t value);
void PutU32(std::string& out, uint32_t value);
void PutRgb(std::string& out, uint32_t rgb);

// A movie built tag by tag; Finish() closes it with the End tag and puts the header before it.
class SwfMovie {
 public:
  SwfMovie(uint8_t version, SwfRect frame, uint16_t framesPerSecond);

  // Adds a tag; bodies of 63 bytes and more get the long header.
  void Add(SwfTag code, const std::string& body);
  void ShowFrame();
  std::string Finish() const;

 private:
  uint8_t version_;
  SwfRect frame_;
  uint16_t framesPerSecond_;
  uint16_t frames_ = 0;
  std::string tags_;
};

}  // namespace lumora::sample
