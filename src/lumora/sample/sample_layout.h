// How the sample numbers its resources and media. Every discipline holds the same two courses;
// each unit of scale adds, per course, kElementsPerUnit type-1005 elements and
// kExercisesPerUnit type-40 exercises. The numbers of the two courses interleave unit by unit,
// so a number names one resource of its type within the whole discipline.
#pragma once

#include <cstdint>

namespace lumora::sample {

inline constexpr uint32_t kCourses[] = {1, 2};
inline constexpr int kElementsPerUnit = 4;
inline constexpr int kExercisesPerUnit = 2;

// Largest scale whose element numbers still fit in the 20 bits of a resource number.
inline constexpr int kMaxScale = 100000;

// Only the first kMediaUnits units get media files of their own; later units point at theirs,
// so a large sample stays small on disk.
inline constexpr int kMediaUnits = 4;

// The one discipline that also holds a few resources of every other exercise type.
inline constexpr int kEveryTypeDiscipline = 1;

inline constexpr uint32_t kElementFolder = 1005;
inline constexpr uint32_t kExerciseFolder = 40;

// The picture of the description index, in course 0 below the folder of type 2000.
inline constexpr uint32_t kDescriptionFolder = 2000;
inline constexpr uint32_t kDescriptionPicture = 10;

// The four kinds of element a unit holds, in slot order.
enum ElementSlot : int {
  kPictureSlot = 0,         // picture in Q1 and Q3
  kSoundSlot = 1,           // sound in Q2 only
  kPlainSlot = 2,           // no medium
  kMissingPictureSlot = 3,  // picture whose file was never delivered
};

inline uint32_t OtherCourse(uint32_t course) { return course == 1 ? 2 : 1; }

inline uint32_t ElementNumber(uint32_t course, int unit, int slot) {
  return static_cast<uint32_t>((unit * 2 + static_cast<int>(course) - 1) * kElementsPerUnit + slot +
                               1);
}

constexpr uint32_t ExerciseNumber(uint32_t course, int unit, int slot) {
  return static_cast<uint32_t>((unit * 2 + static_cast<int>(course) - 1) * kExercisesPerUnit +
                               slot + 1);
}

inline int MediaUnit(int unit) { return unit % kMediaUnits; }

// Two to four items, varying from exercise to exercise; the first unit already has both ends.
inline int ItemCount(int unit, int slot) { return 2 + (unit + 2 * slot) % 3; }

// The video of one item: ten numbers per exercise of a media unit.
inline uint32_t VideoNumber(uint32_t course, int unit, int slot, int item) {
  return ExerciseNumber(course, MediaUnit(unit), slot) * 10 + static_cast<uint32_t>(item);
}

}  // namespace lumora::sample
