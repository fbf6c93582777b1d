#include <lumora/sample/swf_writer.h>

#include <lumora/platform/archive.h>

#include <algorithm>

namespace lumora::sample {
namespace {

// Tag bodies shorter than this fit in the six length bits of the short header.
constexpr uint32_t kLongTagLength = 0x3F;

}  // namespace

void SwfBits::Unsigned(uint32_t value, int width) {
  for (int bit = width - 1; bit >= 0; --bit) {
    if (used_ == 0) bytes_.push_back('\0');
    if ((value >> bit) & 1u) bytes_.back() = static_cast<char>(bytes_.back() | (0x80 >> used_));
    used_ = (used_ + 1) % 8;
  }
}

void SwfBits::Signed(int32_t value, int width) {
  Unsigned(static_cast<uint32_t>(value) & (width >= 32 ? ~0u : (1u << width) - 1u), width);
}

void SwfBits::Align() { used_ = 0; }

std::string SwfBits::Bytes() const { return bytes_; }

int UnsignedWidth(uint32_t value) {
  int width = 0;
  for (; value != 0; value >>= 1) ++width;
  return width;
}

int SignedWidth(int32_t value) {
  const uint32_t magnitude = value < 0 ? ~static_cast<uint32_t>(value) : value;
  return UnsignedWidth(magnitude) + 1;
}

void PutRect(SwfBits& bits, const SwfRect& rect) {
  const int width = std::max({SignedWidth(rect.xMin), SignedWidth(rect.xMax),
                              SignedWidth(rect.yMin), SignedWidth(rect.yMax)});
  bits.Unsigned(static_cast<uint32_t>(width), 5);
  for (int32_t value : {rect.xMin, rect.xMax, rect.yMin, rect.yMax}) bits.Signed(value, width);
  bits.Align();
}

void PutU16(std::string& out, uint16_t value) {
  uint8_t bytes[2];
  EncodeU16(bytes, value);
  out.append(reinterpret_cast<const char*>(bytes), sizeof bytes);
}

void PutU32(std::string& out, uint32_t value) {
  uint8_t bytes[4];
  EncodeU32(bytes, value);
  out.append(reinterpret_cast<const char*>(bytes), sizeof bytes);
}

void PutRgb(std::string& out, uint32_t rgb) {
  for (int shift : {16, 8, 0}) out.push_back(static_cast<char>((rgb >> shift) & 0xFF));
}

SwfMovie::SwfMovie(uint8_t version, SwfRect frame, uint16_t framesPerSecond)
    : version_(version), frame_(frame), framesPerSecond_(framesPerSecond) {}

void SwfMovie::Add(SwfTag code, const std::string& body) {
  const uint32_t length = static_cast<uint32_t>(body.size());
  const uint16_t head = static_cast<uint16_t>(code << 6);
  if (length < kLongTagLength) {
    PutU16(tags_, static_cast<uint16_t>(head | length));
  } else {
    PutU16(tags_, static_cast<uint16_t>(head | kLongTagLength));
    PutU32(tags_, length);
  }
  tags_ += body;
}

void SwfMovie::ShowFrame() {
  Add(kSwfShowFrame, "");
  ++frames_;
}

std::string SwfMovie::Finish() const {
  SwfBits frame;
  PutRect(frame, frame_);
  std::string rest = frame.Bytes();
  // The frame rate is a fixed-point 8.8 value: the fraction byte first.
  PutU16(rest, static_cast<uint16_t>(framesPerSecond_ << 8));
  PutU16(rest, frames_);
  rest += tags_;
  PutU16(rest, static_cast<uint16_t>(kSwfEnd << 6));

  std::string movie = "FWS";
  movie.push_back(static_cast<char>(version_));
  PutU32(movie, static_cast<uint32_t>(movie.size() + 4 + rest.size()));
  return movie + rest;
}

}  // namespace lumora::sample
