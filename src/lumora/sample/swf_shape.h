// One shape of solid colours outlined by straight and curved edges, as the body of a
// DefineShape tag. Each outline starts with MoveTo and is filled on its right-hand side, so an
// outline drawn clockwise on the screen (y grows downwards) fills its inside.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <lumora/sample/swf_writer.h>

namespace lumora::sample {

class SwfShape {
 public:
  // `colours` are the shape's fill styles, 0xRRGGBB each, numbered from 1.
  SwfShape(uint16_t id, SwfRect bounds, std::vector<uint32_t> colours);

  // Starts an outline at (x, y) filled with colour number `fill`.
  void MoveTo(int32_t x, int32_t y, uint32_t fill);
  void LineTo(int32_t x, int32_t y);
  // A quadratic curve through the control point (cx, cy) to (x, y).
  void CurveTo(int32_t cx, int32_t cy, int32_t x, int32_t y);

  std::string Body() const;

 private:
  uint16_t id_;
  SwfRect bounds_;
  std::vector<uint32_t> colours_;
  int fillWidth_;
  SwfBits records_;
  int32_t x_ = 0;
  int32_t y_ = 0;
};

}  // namespace lumora::sample
