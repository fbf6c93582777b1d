// What the writers of the other exercise types share: they all write a few resources of their
// type in course 1 of one discipline, numbered from 1, with media in the type's own folder.
// The package of every discipline adds one resource of some of these types in course 0, whose
// media lie in course 0 too.
#pragma once

#include <lumora/resources/media_ref.h>
#include <lumora/resources/resource_id.h>

#include <cstdint>
#include <initializer_list>
#include <string>

#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_media.h>

namespace lumora::sample {

inline constexpr uint32_t kTypeCourse = 1;

inline uint32_t TypeResourceId(uint32_t number) { return MakeResourceId(kTypeCourse, number); }

// A medium in the folder of `type` of `course`, named after `number`.
inline MediaRef TypeMedium(uint32_t kind, uint32_t type, uint32_t number,
                           uint32_t course = kTypeCourse) {
  return MediaRef(kind, type, MakeResourceId(course, number));
}

// The file of a medium of TypeMedium: `letter` is its stem's ('s' sound, 'p' picture, 'v' video).
inline bool WriteTypeMedium(const std::string& root, uint32_t type, char letter, uint32_t number,
                            const char* extension, std::initializer_list<int> qualities,
                            std::string* error, uint32_t course = kTypeCourse) {
  return WriteMedium(root, {course, type, letter, number, extension, qualities}, error);
}

// Stores resources 1 to `count` of class Resource, each filled by `build(resource, number)`.
template <typename Resource, typename Build>
bool StoreNumbered(const std::string& root, uint32_t count, Build build, std::string* error) {
  for (uint32_t number = 1; number <= count; ++number) {
    Resource resource;
    build(resource, number);
    if (!StoreResourceFile(root, TypeResourceId(number), resource, error)) return false;
  }
  return true;
}

}  // namespace lumora::sample
