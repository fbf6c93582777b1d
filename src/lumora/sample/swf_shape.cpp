#include <lumora/sample/swf_shape.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace lumora::sample {
namespace {

constexpr uint8_t kSolidFill = 0x00;

// Edge fields are at least two bits wide: their width is stored less two in four bits.
int EdgeWidth(std::initializer_list<int32_t> deltas) {
  int width = 2;
  for (int32_t delta : deltas) width = std::max(width, SignedWidth(delta));
  return width;
}

}  // namespace

SwfShape::SwfShape(uint16_t id, SwfRect bounds, std::vector<uint32_t> colours)
    : id_(id),
      bounds_(bounds),
      colours_(std::move(colours)),
      fillWidth_(UnsignedWidth(static_cast<uint32_t>(colours_.size()))) {
  records_.Unsigned(static_cast<uint32_t>(fillWidth_), 4);
  records_.Unsigned(0, 4);  // no line styles
}

void SwfShape::MoveTo(int32_t x, int32_t y, uint32_t fill) {
  // A style change record: not an edge, no new styles, no line style, fill 1, no fill 0, move.
  records_.Unsigned(0b000101, 6);
  const int width = std::max(SignedWidth(x), SignedWidth(y));
  records_.Unsigned(static_cast<uint32_t>(width), 5);
  records_.Signed(x, width);
  records_.Signed(y, width);
  records_.Unsigned(fill, fillWidth_);
  x_ = x;
  y_ = y;
}

void SwfShape::LineTo(int32_t x, int32_t y) {
  const int32_t dx = x - x_;
  const int32_t dy = y - y_;
  const int width = EdgeWidth({dx, dy});
  records_.Unsigned(0b11, 2);  // an edge, straight
  records_.Unsigned(static_cast<uint32_t>(width - 2), 4);
  if (dx != 0 && dy != 0) {
    records_.Unsigned(1, 1);  // general line: both deltas
    records_.Signed(dx, width);
    records_.Signed(dy, width);
  } else {
    records_.Unsigned(0, 1);
    records_.Unsigned(dx == 0 ? 1 : 0, 1);  // vertical line
    records_.Signed(dx == 0 ? dy : dx, width);
  }
  x_ = x;
  y_ = y;
}

void SwfShape::CurveTo(int32_t cx, int32_t cy, int32_t x, int32_t y) {
  const int32_t deltas[] = {cx - x_, cy - y_, x - cx, y - cy};
  const int width = EdgeWidth({deltas[0], deltas[1], deltas[2], deltas[3]});
  records_.Unsigned(0b10, 2);  // an edge, curved
  records_.Unsigned(static_cast<uint32_t>(width - 2), 4);
  for (int32_t delta : deltas) records_.Signed(delta, width);
  x_ = x;
  y_ = y;
}

std::string SwfShape::Body() const {
  std::string body;
  PutU16(body, id_);
  SwfBits bounds;
  PutRect(bounds, bounds_);
  body += bounds.Bytes();
  body.push_back(static_cast<char>(colours_.size()));
  for (uint32_t colour : colours_) {
    body.push_back(static_cast<char>(kSolidFill));
    PutRgb(body, colour);
  }
  body.push_back('\0');  // no line styles
  SwfBits records = records_;
  records.Unsigned(0, 6);  // the end of the shape
  return body + records.Bytes();
}

}  // namespace lumora::sample
