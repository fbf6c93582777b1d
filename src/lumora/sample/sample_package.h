// The package that gives an export of the sample something to carry: resources of several
// exercise types in course 0, whose published copies an export writes beside them, video
// questions whose videos name the lessons of the glossary and the grammar, and the
// description of one of those videos, which names a grammar point. Every opened discipline
// holds it whole.
#pragma once

#include <cstdint>
#include <string>

#include <lumora/sample/sample_layout.h>

namespace lumora::sample {

inline constexpr uint32_t kPackageCourse = 0;

// The exercise (type 40) lies one past the largest exercise number any scale gives, since a
// number names one exercise in the whole discipline.
inline constexpr uint32_t kPackageExerciseNumber =
    ExerciseNumber(kCourses[1], kMaxScale - 1, kExercisesPerUnit - 1) + 1;
// The dictation (5), the phonetics (10), the listening exercise (28) and the video questions
// (8) share a number that course 1 of the first discipline leaves free for each of them.
inline constexpr uint32_t kPackageNumber = 4;

// A resource number at or above 0x1000 keeps a lesson x in its bits 11 to 19, which stands for
// lesson (x / 100) * 10000 + x % 100; a smaller number is a lesson itself.
constexpr uint32_t LessonOf(uint32_t number) {
  if (number < 0x1000) return number;
  const uint32_t x = (number >> 11) & 0x1FF;
  return (x / 100) * 10000 + x % 100;
}

// The two videos the questions link to, in course 0: the first is about the glossary's first
// lesson and is the one asked about, the second is the grammar's questions lesson.
inline constexpr uint32_t kLessonVideo = (101u << 11) | 1;
inline constexpr uint32_t kPlainVideo = 3;
inline constexpr uint32_t kPackageVideos[] = {kLessonVideo, kPlainVideo};

// The lessons of the glossary's links: the first is the one the package's video names.
inline constexpr uint32_t kGlossaryLessons[] = {LessonOf(kLessonVideo), LessonOf(kLessonVideo) + 1};
// The grammar's lessons: the first teaches the articles and the verbs, the second the
// questions, and only the second is the package's.
inline constexpr uint32_t kGrammarLessons[] = {1, LessonOf(kPlainVideo)};
// The grammar point that the description of the lesson video names.
inline constexpr uint16_t kDescribedPoint = 2;

static_assert(kGlossaryLessons[0] == 10001 && kGrammarLessons[1] == 3);

// Writes the package's resources and their media below the Local root `root`. The
// description of the lesson video is not listed in the description index, which is written
// from its own entries.
bool WritePackageResources(const std::string& root, std::string* error);

}  // namespace lumora::sample
