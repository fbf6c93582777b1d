// Media resolution, verification and export copying of type-1010 resources.
#include <lumora/resources/media_copy.h>
#include <lumora/resources/media_lookup.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

std::string Q3PicturePath(const std::string& root, const MediaRef& picture) {
  return root + CourseFolderName(CourseOf(picture.resource)) + kPathSeparator +
         NumberedName('r', picture.folder) + kPathSeparator + "Q3" + kPathSeparator +
         NumberedName('p', NumberOf(picture.resource)) + ".swf";
}

}  // namespace

void Type1010Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                    const std::string& chosen_root) {
  picture.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
}

bool Type1010Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                                 const ByteArray& quality_folders, const std::string& source_root) {
  if (picture.resource == 0) return false;
  return MediaCopier(destination_root, destination_id, GetType(), quality_folders, source_root)
      .Copy(picture);
}

bool Type1010Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                   std::string& report, uint32_t resource_id) {
  report.clear();
  if (picture.resource == 0) {
    report =
        FormatReportLine("\t\tNo picture found for Item n\xB0%d!\n", static_cast<int>(resource_id));
    return false;
  }
  if (!FindInQualityFolders(picture, root, quality_folders)) {
    report += FormatReportLine("\t\tFile not found: %s!\n",
                               ExpectedMediaPath(picture, root, quality_folders).c_str());
  }
  const std::string q3 = Q3PicturePath(root, picture);
  if (!FileListed(q3)) report += FormatReportLine("File not found: %s!\n", q3.c_str());
  return report.empty();
}

}  // namespace lumora
