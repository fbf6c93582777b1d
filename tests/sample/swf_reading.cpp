#include "sample/swf_reading.h"

namespace lumora::testing {
namespace {

class BitReader {
 public:
  BitReader(const std::string& bytes, size_t offset) : bytes_(bytes), bit_(offset * 8) {}

  uint32_t Unsigned(int width) {
    uint32_t value = 0;
    for (int i = 0; i < width; ++i, ++bit_) {
      const auto byte = static_cast<uint8_t>(bit_ / 8 < bytes_.size() ? bytes_[bit_ / 8] : 0);
      value = value << 1 | ((byte >> (7 - bit_ % 8)) & 1u);
    }
    return value;
  }

  int32_t Signed(int width) {
    const uint32_t value = Unsigned(width);
    if (width == 0 || !(value >> (width - 1) & 1u)) return static_cast<int32_t>(value);
    return static_cast<int32_t>(value) - static_cast<int32_t>(width == 32 ? 0 : 1u << width);
  }

  size_t NextByte() const { return (bit_ + 7) / 8; }

 private:
  const std::string& bytes_;
  size_t bit_;
};

uint32_t Little(const std::string& bytes, size_t at, int size) {
  uint32_t value = 0;
  for (int i = size - 1; i >= 0; --i) value = value << 8 | static_cast<uint8_t>(bytes[at + i]);
  return value;
}

size_t ReadRect(const std::string& bytes, size_t at, int32_t* rect) {
  BitReader bits(bytes, at);
  const int width = static_cast<int>(bits.Unsigned(5));
  for (int i = 0; i < 4; ++i) rect[i] = bits.Signed(width);
  return bits.NextByte();
}

}  // namespace

SwfRead ReadSwf(const std::string& bytes) {
  SwfRead swf;
  if (bytes.size() < 21) return swf;
  swf.version = static_cast<uint8_t>(bytes[3]);
  swf.fileLength = Little(bytes, 4, 4);
  size_t at = ReadRect(bytes, 8, swf.rect);
  swf.frameRate = static_cast<uint16_t>(Little(bytes, at, 2));
  swf.frames = static_cast<uint16_t>(Little(bytes, at + 2, 2));
  at += 4;
  while (at + 2 <= bytes.size()) {
    const uint32_t head = Little(bytes, at, 2);
    uint32_t length = head & 0x3F;
    at += 2;
    if (length == 0x3F) {
      if (at + 4 > bytes.size()) return {};
      length = Little(bytes, at, 4);
      at += 4;
    }
    if (at + length > bytes.size()) return {};
    swf.tags.push_back({static_cast<uint16_t>(head >> 6), bytes.substr(at, length)});
    at += length;
  }
  swf.signature = bytes.substr(0, 3);
  return swf;
}

std::vector<Outline> ReadShapeOutlines(const std::string& body) {
  int32_t bounds[4];
  size_t at = ReadRect(body, 2, bounds);
  std::vector<uint32_t> colours;
  const int fillCount = static_cast<uint8_t>(body[at++]);
  for (int i = 0; i < fillCount; ++i, at += 4) {  // a fill type byte, then red, green, blue
    colours.push_back(static_cast<uint32_t>(static_cast<uint8_t>(body[at + 1]) << 16 |
                                            static_cast<uint8_t>(body[at + 2]) << 8 |
                                            static_cast<uint8_t>(body[at + 3])));
  }
  at += 1;  // no line styles in the sample's shapes
  BitReader bits(body, at);
  const int fillWidth = static_cast<int>(bits.Unsigned(4));
  const int lineWidth = static_cast<int>(bits.Unsigned(4));
  std::vector<Outline> outlines;
  Point pen{0, 0};
  for (;;) {
    if (bits.Unsigned(1) == 0) {
      const uint32_t flags = bits.Unsigned(5);
      if (flags == 0) return outlines;
      if (flags & 1) {
        const int width = static_cast<int>(bits.Unsigned(5));
        pen.x = bits.Signed(width);
        pen.y = bits.Signed(width);
      }
      const uint32_t fill0 = flags & 2 ? bits.Unsigned(fillWidth) : 0;
      const uint32_t fill1 = flags & 4 ? bits.Unsigned(fillWidth) : 0;
      if (flags & 8) bits.Unsigned(lineWidth);
      const uint32_t fill = fill1 != 0 ? fill1 : fill0;
      outlines.push_back({fill == 0 || fill > colours.size() ? 0 : colours[fill - 1], {pen}});
      continue;
    }
    if (outlines.empty()) return {};
    const bool straight = bits.Unsigned(1) == 1;
    const int width = static_cast<int>(bits.Unsigned(4)) + 2;
    if (straight) {
      if (bits.Unsigned(1) == 1) {
        pen.x += bits.Signed(width);
        pen.y += bits.Signed(width);
      } else if (bits.Unsigned(1) == 1) {
        pen.y += bits.Signed(width);
      } else {
        pen.x += bits.Signed(width);
      }
    } else {
      for (int i = 0; i < 2; ++i) {
        pen.x += bits.Signed(width);
        pen.y += bits.Signed(width);
      }
    }
    outlines.back().points.push_back(pen);
  }
}

}  // namespace lumora::testing
