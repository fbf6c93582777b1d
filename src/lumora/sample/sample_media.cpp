#include <lumora/sample/sample_media.h>

#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_layout.h>
#include <lumora/sample/swf_media.h>

namespace lumora::sample {
namespace {

constexpr int kVideosPerExercise = 3;

// The element slots with a medium on disk; the missing picture stays without a file.
bool WriteElementMedia(const std::string& root, uint32_t course, int unit, std::string* error) {
  const uint32_t picture = ElementNumber(course, unit, kPictureSlot);
  const uint32_t sound = ElementNumber(course, unit, kSoundSlot);
  return WriteMedium(root, {course, kElementFolder, 'p', picture, ".swf", {1, 3}}, error) &&
         WriteMedium(root, {course, kElementFolder, 's', sound, ".swf", {2}}, error);
}

// Item videos by item position: MPEG in Q1; AVI in Q2 and Q3; MPEG and AVI side by side in Q3
// (the MPEG wins); the fourth item's video is missing. Written for three items whatever the
// exercise holds, since the exercises of later units borrow them.
bool WriteItemVideo(const std::string& root, uint32_t course, int unit, int slot, int item,
                    std::string* error) {
  const uint32_t video = VideoNumber(course, unit, slot, item);
  switch (item) {
    case 0:
      return WriteMedium(root, {course, kExerciseFolder, 'v', video, ".mpg", {1}}, error);
    case 1:
      return WriteMedium(root, {course, kExerciseFolder, 'v', video, ".avi", {2, 3}}, error);
    case 2:
      return WriteMedium(root, {course, kExerciseFolder, 'v', video, ".mpg", {3}}, error) &&
             WriteMedium(root, {course, kExerciseFolder, 'v', video, ".avi", {3}}, error);
    default:
      return true;
  }
}

bool WriteUnitMedia(const std::string& root, uint32_t course, int unit, std::string* error) {
  if (!WriteElementMedia(root, course, unit, error)) return false;
  for (int slot = 0; slot < kExercisesPerUnit; ++slot) {
    for (int item = 0; item < kVideosPerExercise; ++item) {
      if (!WriteItemVideo(root, course, unit, slot, item, error)) return false;
    }
  }
  return true;
}

}  // namespace

std::string MediumBytes(char letter, uint32_t number, const std::string& extension) {
  if (extension != ".swf") return "sample " + NumberedName(letter, number) + extension + "\n";
  switch (letter) {
    case 's':
      return SwfTone(number);
    case 'p':
      return SwfPicture(number);
    default:
      return SwfClip(number);
  }
}

bool WriteMedium(const std::string& root, const MediumFiles& medium, std::string* error) {
  const std::string folder = root + CourseFolderName(medium.course) + kPathSeparator +
                             NumberedName('r', medium.folder) + kPathSeparator;
  const std::string name = NumberedName(medium.letter, medium.number) + medium.extension;
  const std::string bytes = MediumBytes(medium.letter, medium.number, medium.extension);
  for (int q : medium.qualities) {
    char quality[8];
    std::snprintf(quality, sizeof quality, "Q%d%c", q, kPathSeparator);
    if (!WriteBytesFile(folder + quality + name, bytes, error)) return false;
  }
  return true;
}

bool WriteSampleMedia(const std::string& root, int scale, std::string* error) {
  for (uint32_t course : kCourses) {
    for (int unit = 0; unit < std::min(scale, kMediaUnits); ++unit) {
      if (!WriteUnitMedia(root, course, unit, error)) return false;
    }
  }
  return WriteMedium(root, {0, kDescriptionFolder, 'p', kDescriptionPicture, ".swf", {1}}, error);
}

}  // namespace lumora::sample
