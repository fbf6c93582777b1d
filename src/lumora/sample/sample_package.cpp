#include <lumora/sample/sample_package.h>

#include <lumora/platform/archive.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type40.h>

#include <lumora/sample/sample_builders.h>
#include <lumora/sample/sample_exercise_types.h>
#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_phrases.h>

namespace lumora::sample {
namespace {

constexpr uint16_t kGrammarType = 1002;
// Any kind but the video links' 3: the description's links are read by their target type.
constexpr uint16_t kPointLinkKind = 1;

// The course-0 exercise reviews the first exercise of course 1: same items, elements and
// videos, all in course 1.
bool WriteExercise(const std::string& root, std::string* error) {
  Type40Resource exercise;
  BuildExercise(exercise, kCourses[0], 0, 0);
  return StoreResourceFile(root, MakeResourceId(kPackageCourse, kPackageExerciseNumber), exercise,
                           error);
}

Record16 PointLink(uint16_t point) {
  Record16 link;
  EncodeU16(&link.bytes[0], kPointLinkKind);
  EncodeU16(&link.bytes[8], kGrammarType);
  EncodeU32(&link.bytes[12], point);
  return link;
}

// The description of the lesson video, filed where a referenced video's description is read:
// below the folder of type 2000 of the course the identifier names, under its number. It
// shows the description index's picture.
bool WriteVideoDescription(const std::string& root, std::string* error) {
  Type2000Resource description;
  description.description.attribute = 1;
  description.description.titles.Add(kEnglish,
                                     CodePageText(kWesternCodePage, WideText(u"At the station")));
  description.description.titles.Add(kFrench,
                                     CodePageText(kWesternCodePage, WideText(u"À la gare")));
  description.description.media =
      MediaRef(kMediaPicture, kDescriptionFolder, MakeResourceId(0, kDescriptionPicture));
  description.records.Add(PointLink(kDescribedPoint));
  return StoreResourceFile(root, kLessonVideo, description, error);
}

}  // namespace

bool WritePackageResources(const std::string& root, std::string* error) {
  if (!WriteExercise(root, error) || !WriteSoundPair(root, kPackageCourse, kPackageNumber, error) ||
      !WritePhonetics(root, kPackageCourse, kPackageNumber, error)) {
    return false;
  }
  for (uint32_t video : kPackageVideos) {
    if (!WriteVideo(root, kPackageCourse, video, error)) return false;
  }
  return WriteVideoQuestions(root, kPackageCourse, kPackageNumber, kPackageVideos, error) &&
         WriteVideoDescription(root, error);
}

}  // namespace lumora::sample
