#include <lumora/sample/sample_resources.h>

#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

#include <cstdint>

#include <lumora/sample/sample_builders.h>
#include <lumora/sample/sample_files.h>
#include <lumora/sample/sample_layout.h>

namespace lumora::sample {
namespace {

// The exercise that gets a revised twin: the first of course 1.
constexpr uint32_t kRevisedCourse = 1;

bool WriteUnit(const std::string& root, uint32_t course, int unit, std::string* error) {
  for (int slot = 0; slot < kElementsPerUnit; ++slot) {
    ContentElement element;
    BuildElement(element, course, unit, slot);
    const uint32_t id = MakeResourceId(course, ElementNumber(course, unit, slot));
    if (!StoreResourceFile(root, id, element, error)) return false;
  }
  for (int slot = 0; slot < kExercisesPerUnit; ++slot) {
    Type40Resource exercise;
    BuildExercise(exercise, course, unit, slot);
    const uint32_t id = MakeResourceId(course, ExerciseNumber(course, unit, slot));
    if (!StoreResourceFile(root, id, exercise, error)) return false;
  }
  return true;
}

// The twin holds one item more than the ".ars" file, so whichever is read shows in the count.
bool WriteRevisedTwin(const std::string& root, std::string* error) {
  Type40Resource exercise;
  BuildExercise(exercise, kRevisedCourse, 0, 0);
  AddRevisionItem(exercise, kRevisedCourse, 0, 0);
  const uint32_t id = MakeResourceId(kRevisedCourse, ExerciseNumber(kRevisedCourse, 0, 0));
  exercise.resourceId = id;
  const std::string path = ChangeExtension(ResourceFilePath(root, exercise.GetType(), id), "arh");
  return StoreObjectFile(path, exercise, error);
}

}  // namespace

bool WriteSampleResources(const std::string& root, int scale, std::string* error) {
  for (int unit = 0; unit < scale; ++unit) {
    for (uint32_t course : kCourses) {
      if (!WriteUnit(root, course, unit, error)) return false;
    }
  }
  return WriteRevisedTwin(root, error);
}

}  // namespace lumora::sample
