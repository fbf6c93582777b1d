// Resource identifiers and the names of the folders and files built from them. A ResourceId
// holds the course number in its top 12 bits and the resource number in its low 20 bits.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>

namespace lumora {

inline constexpr uint32_t kResourceNumberMask = 0xFFFFF;

inline constexpr uint32_t CourseOf(uint32_t resource_id) { return resource_id >> 20; }
inline constexpr uint32_t NumberOf(uint32_t resource_id) {
  return resource_id & kResourceNumberMask;
}
inline constexpr uint32_t MakeResourceId(uint32_t course, uint32_t number) {
  return (course << 20) | (number & kResourceNumberMask);
}

// `letter`, then `number` in decimal with zeros before it up to `digits` digits (a longer
// number keeps all of its own). Paths are built from these by the hundred thousand in a check
// or an export: no formatting call.
inline std::string LetterAndNumber(char letter, uint32_t number, size_t digits) {
  char text[10];
  const char* end = std::to_chars(text, text + sizeof text, number).ptr;
  const auto length = static_cast<size_t>(end - text);
  std::string name(1, letter);
  if (length < digits) name.append(digits - length, '0');
  return name.append(text, length);
}

// "C0001": the folder of a course.
inline std::string CourseFolderName(uint32_t course) { return LetterAndNumber('C', course, 4); }

// "r0000040": the folder of an exercise type, the stem of its index file, or of a resource.
inline std::string NumberedName(char letter, uint32_t number) {
  return LetterAndNumber(letter, number, 7);
}

}  // namespace lumora
