// Verification of type-19 resources: the picture, the linked resources and the positions.
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_check.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/type19.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <memory>

namespace lumora {
namespace {

std::string PicturePath(const std::string& root, uint32_t resource_id) {
  return root + CourseFolderName(CourseOf(resource_id)) + kPathSeparator +
         NumberedName('r', Type19Resource::kType) + kPathSeparator + "Q3" + kPathSeparator +
         NumberedName('p', NumberOf(resource_id)) + ".swf";
}

// A linked resource file that exists must also read as a resource of its type.
bool Opens(const std::string& path, uint32_t type) {
  std::unique_ptr<ExerciseResource> resource = NewResource(type);
  return resource != nullptr && LoadArchiveFile(path, false, *resource);
}

}  // namespace

// Reports, in this order: a missing picture; each linked resource file that is missing or
// does not read as its type; each position id that names no string.
bool Type19Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  (void)quality_folders;
  report.clear();
  const std::string picture = PicturePath(root, resource_id);
  if (!FileListed(picture))
    report += FormatReportLine("\t\tFile not found: %s!\n", picture.c_str());
  for (const LinkedFile& file : LinkedResourceFiles(root, records, resource_id)) {
    if (!FileListed(file.path)) {
      report += FormatReportLine("\t\tFile not found: %s!\n", file.path.c_str());
    } else if (!Opens(file.path, file.type)) {
      report += FormatReportLine("\t\tCan not open file: %s!\n", file.path.c_str());
    }
  }
  for (uint32_t position : positions) {
    if (position == 0 || position > names.items.size()) {
      report += FormatReportLine("\t\tPositon Id: %d not found for Item : %d!\n",
                                 static_cast<int>(position), static_cast<int>(resource_id));
    }
  }
  return report.empty();
}

}  // namespace lumora
