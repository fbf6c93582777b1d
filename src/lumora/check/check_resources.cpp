// Every resource file of every exercise type decodes with its type's class, and holds the
// resource its path names; an ".arh" twin, which the library prefers, decodes too.
#include <lumora/check/checks.h>
#include <lumora/check/resource_walk.h>
#include <lumora/platform/file.h>
#include <lumora/platform/kept_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <string>

namespace lumora {
namespace {

constexpr uint64_t kMostResourceBytes = uint64_t{256} << 20;

std::string IdText(uint32_t course, uint32_t number) {
  return "course " + std::to_string(course) + ", number " + std::to_string(number);
}

// Index files are rebuilt and media verified from these bytes later in the same check.
LoadResult ReadAndKeep(const std::string& path, ExerciseResource& resource) {
  std::string bytes;
  switch (ReadWholeFile(path, kMostResourceBytes, bytes)) {
    case WholeFile::kRead:
      break;
    case WholeFile::kTooLarge:
      return LoadResult({path, std::nullopt, "is larger than any resource file can be"});
    default:
      return ReadArchiveFile(path, resource);  // says why it cannot be read
  }
  KeepFile(path, std::move(bytes));
  if (const std::string* kept = KeptFile(path)) return ReadArchiveBytes(*kept, resource, path);
  return ReadArchiveFile(path, resource);
}

void CheckFile(const CheckedRoot& root, uint32_t type, const WalkedResource& file,
               CheckReport& report) {
  ++report.checked;
  const std::string relative = root.Relative(file.path);
  if (!file.course) {
    report.Warning(relative,
                   "lies outside a course folder (C and four digits): the library never reads it");
  }
  std::unique_ptr<ExerciseResource> resource = NewResource(type);
  const LoadResult loaded = ReadAndKeep(file.path, *resource);
  if (!loaded.ok()) {
    report.Error(relative,
                 "does not decode as type " + std::to_string(type) + " (" +
                     loaded.failure().Details() + ")" +
                     (file.twin ? ": the library reads this twin before the .ars file" : ""));
    return;
  }
  const uint32_t stored = resource->resourceId;
  if (file.course && (CourseOf(stored) != *file.course || NumberOf(stored) != file.number)) {
    report.Error(relative, "holds resource " + std::to_string(stored) + " (" +
                               IdText(CourseOf(stored), NumberOf(stored)) +
                               ") but its path names " + IdText(*file.course, file.number));
  }
}

}  // namespace

void CheckResources(const CheckedRoot& root, CheckReport& report) {
  for (const CheckedDiscipline& d : root.disciplines) {
    for (uint32_t type : kExerciseTypes) {
      for (const WalkedResource& file : WalkResourceFiles(d.discipline->localRoot, type)) {
        CheckFile(root, type, file, report);
      }
    }
  }
}

}  // namespace lumora
