// Resource identifiers and the names of the folders and files built from them. A ResourceId
// holds the course number in its top 12 bits and the resource number in its low 20 bits.
#pragma once

#include <cstdint>
#include <cstdio>
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

// "C0001": the folder of a course.
inline std::string CourseFolderName(uint32_t course) {
  char name[16];
  std::snprintf(name, sizeof name, "C%04u", course);
  return name;
}

// "r0000040": the folder of an exercise type, the stem of its index file, or of a resource.
inline std::string NumberedName(char letter, uint32_t number) {
  char name[16];
  std::snprintf(name, sizeof name, "%c%07u", letter, number);
  return name;
}

}  // namespace lumora
