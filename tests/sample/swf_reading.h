// A reader of the few Flash tags the sample writes, independent of the writer: the header
// fields, the tag list, and the outlines of a shape as the pen walks them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::testing {

struct SwfTagRead {
  uint16_t code;
  std::string body;
};

struct SwfRead {
  std::string signature;
  uint8_t version = 0;
  uint32_t fileLength = 0;
  int32_t rect[4] = {};  // xMin, xMax, yMin, yMax in twips
  uint16_t frameRate = 0;
  uint16_t frames = 0;
  std::vector<SwfTagRead> tags;
};

// Empty signature when the bytes end before the header does or a tag runs past the end.
SwfRead ReadSwf(const std::string& bytes);

struct Point {
  int32_t x;
  int32_t y;
  bool operator==(const Point&) const = default;
};

// The outlines of a DefineShape body: each starts at a MoveTo and lists the points its edges
// reach (curves by their anchors), with the fill colour (0xRRGGBB) of the outline.
struct Outline {
  uint32_t colour;
  std::vector<Point> points;
};
std::vector<Outline> ReadShapeOutlines(const std::string& body);

}  // namespace lumora::testing
