// The resources of every exercise type besides the elements and type-40 exercises: a few of
// each, written once whatever the scale, each family of types by its own writer. Each writes
// its resources and their media below the Local root `root`.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace lumora::sample {

// Types 1, 2, 3, 4, 7, 16, 17 and 18: texts and words, no media.
bool WriteTextTypes(const std::string& root, std::string* error);
// Types 12, 13 and 15: grammar and sentence practice, no media.
bool WritePracticeTypes(const std::string& root, std::string* error);
// Types 5 and 28: sentences with their sounds.
bool WriteSoundTypes(const std::string& root, std::string* error);
// One dictation (type 5) and one listening exercise (type 28), both numbered `number` in
// `course`, with their sounds in that course.
bool WriteSoundPair(const std::string& root, uint32_t course, uint32_t number, std::string* error);
// Types 9, 14, 19, 20, 1006 and 1010: exercises around pictures.
bool WritePictureTypes(const std::string& root, std::string* error);
// Types 1003, 8, 10 and 21: videos, the questions about them, and exercises with video clues.
bool WriteVideoTypes(const std::string& root, std::string* error);
// Video `number` of `course` (type 1003) with its movie and pictures.
bool WriteVideo(const std::string& root, uint32_t course, uint32_t number, std::string* error);
// Video questions (type 8) numbered `number` in `course`: its head links to every video of
// `videos` (each one of the same course), and its questions ask about the paragraphs of the
// first.
bool WriteVideoQuestions(const std::string& root, uint32_t course, uint32_t number,
                         std::span<const uint32_t> videos, std::string* error);
// One phonetics exercise (type 10) numbered `number` in `course`, with its words' videos.
bool WritePhonetics(const std::string& root, uint32_t course, uint32_t number, std::string* error);

inline bool WriteEveryExerciseType(const std::string& root, std::string* error) {
  return WriteTextTypes(root, error) && WritePracticeTypes(root, error) &&
         WriteSoundTypes(root, error) && WritePictureTypes(root, error) &&
         WriteVideoTypes(root, error);
}

}  // namespace lumora::sample
