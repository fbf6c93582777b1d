// Media resolution, verification and export copying of type-9 resources: the one picture.
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type9.h>

namespace lumora {

void Type9Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                 const std::string& chosen_root) {
  media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
}

// A picture that no lookup finds is reported under the resource's id; a picture that is found,
// but not in every quality folder the export fills, is reported for each folder that lacks it.
bool Type9Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                std::string& report, uint32_t resource_id) {
  report.clear();
  if (!LookUpMissingMedium(root, quality_folders, media).empty()) {
    report =
        FormatReportLine("\t\tMedia not found for Item n\xB0%d!\n", static_cast<int>(resource_id));
    return false;
  }
  for (const std::string& path : MissingMediumCopies(root, quality_folders, media)) {
    report += FormatReportLine("\t\tFile not found : %s\n", path.c_str());
  }
  return report.empty();
}

bool Type9Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                              const ByteArray& quality_folders, const std::string& source_root) {
  return MediaCopier(destination_root, destination_id, GetType(), quality_folders, source_root)
      .Copy(media);
}

}  // namespace lumora
