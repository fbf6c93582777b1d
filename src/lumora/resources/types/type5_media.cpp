// Media resolution, verification and export copying of type-5 resources. Each sentence has
// one sound; its texts carry no media.
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type5.h>

namespace lumora {

void Type5Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                 const std::string& chosen_root) {
  for (auto& sentence : sentences) {
    sentence->media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// A dictation without sentences is reported under the resource's id. A sound that no lookup
// finds is reported once, with the file the first lookup tried; a sound that is found, but not
// in every quality folder the export fills, is reported for each folder that lacks it.
bool Type5Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                std::string& report, uint32_t resource_id) {
  report.clear();
  if (sentences.empty()) {
    report = FormatReportLine("\t\tNo sentences found for Item n\xB0%d!\n",
                              static_cast<int>(resource_id));
    return false;
  }
  for (auto& sentence : sentences) {
    const std::string missing = LookUpMissingMedium(root, quality_folders, sentence->media);
    if (!missing.empty()) {
      report += FormatReportLine("\t\tFile not found: %s!\n", missing.c_str());
      continue;
    }
    for (const std::string& path : MissingMediumCopies(root, quality_folders, sentence->media)) {
      report += FormatReportLine("\t\tFile not found: %s\n", path.c_str());
    }
  }
  return report.empty();
}

bool Type5Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                              const ByteArray& quality_folders, const std::string& source_root) {
  if (sentences.empty()) return false;
  const MediaCopier copier(destination_root, destination_id, GetType(), quality_folders,
                           source_root);
  for (auto& sentence : sentences) {
    if (!copier.Copy(sentence->media)) return false;
  }
  return true;
}

}  // namespace lumora
