#include <lumora/platform/archive.h>
#include <lumora/resources/link_record.h>
#include <lumora/resources/media_lookup.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {

void Type1003Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  script.Serialize(ar);
  video.Serialize(ar);
  title.Serialize(ar);
  picture.Serialize(ar);
}

void Type1003Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                    const std::string& chosen_root) {
  video.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  picture.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
}

bool Type1003Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                   std::string& report, uint32_t resource_id) {
  report.clear();
  const int item = static_cast<int>(resource_id);
  if (!FindInQualityFolders(video, root, quality_folders)) {
    report += FormatReportLine("\t\tNo video found for Item n\xB0%d!\n", item);
  }
  if (!FindInQualityFolders(picture, root, quality_folders)) {
    report += FormatReportLine("\t\tNo picture found for Item n\xB0%d!\n", item);
  }
  const std::string course = root + CourseFolderName(CourseOf(resource_id)) + kPathSeparator;
  for (const Record16& record : records) {
    const LinkRecord link(record);
    if (link.targetType() == 0) continue;  // a record that names no resource
    const std::string path = course + NumberedName('r', link.targetType()) + kPathSeparator +
                             NumberedName('r', link.targetNumber()) + ".ars";
    if (!FileListed(path)) report += FormatReportLine("\t\tFile not found: %s!\n", path.c_str());
  }
  return report.empty();
}

}  // namespace lumora
