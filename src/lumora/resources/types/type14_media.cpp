// Media resolution, verification and export copying of type-14 resources: the media list.
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type14.h>

namespace lumora {

void Type14Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  for (auto& medium : media) {
    medium->BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// Every medium that no lookup finds is reported with the file the first lookup tried. A
// resource without media has nothing to miss.
bool Type14Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  (void)resource_id;
  report.clear();
  for (auto& medium : media) {
    const std::string missing = LookUpMissingMedium(root, quality_folders, *medium);
    if (!missing.empty()) report += FormatReportLine("\t\tFile not found: %s!\n", missing.c_str());
  }
  return report.empty();
}

bool Type14Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                               const ByteArray& quality_folders, const std::string& source_root) {
  const MediaCopier copier(destination_root, destination_id, GetType(), quality_folders,
                           source_root);
  for (auto& medium : media) {
    if (!copier.Copy(*medium)) return false;
  }
  return true;
}

}  // namespace lumora
