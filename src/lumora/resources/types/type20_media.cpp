// Media resolution, verification and export copying of type-20 resources.
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type20.h>

namespace lumora {

void Type20Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  for (auto& piece : pieces) {
    piece->media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// Without pieces the resource is reported under its id. Otherwise each piece's medium is
// looked up as the export will look it up, and every quality folder that lacks its own copy
// is reported, whether the medium is found elsewhere or not at all.
bool Type20Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  report.clear();
  if (pieces.empty()) {
    report =
        FormatReportLine("\t\tNo media found for Item n\xB0%d!\n", static_cast<int>(resource_id));
    return false;
  }
  for (auto& piece : pieces) {
    LookUpMissingMedium(root, quality_folders, piece->media);
    for (const std::string& path : MissingMediumCopies(root, quality_folders, piece->media)) {
      report += FormatReportLine("\t\tFile not found: %s\n", path.c_str());
    }
  }
  return report.empty();
}

bool Type20Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                               const ByteArray& quality_folders, const std::string& source_root) {
  if (pieces.empty()) return false;
  const MediaCopier copier(destination_root, destination_id, GetType(), quality_folders,
                           source_root);
  for (auto& piece : pieces) {
    if (!copier.Copy(piece->media)) return false;
  }
  return true;
}

}  // namespace lumora
