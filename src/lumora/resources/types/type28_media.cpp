// Media resolution and verification of type-28 resources.
#include <lumora/resources/media_check.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type28.h>

namespace lumora {

void Type28Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  for (auto& sentence : sentences) {
    sentence->media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// Without sentences the resource is reported under its id. Otherwise every sound that no
// lookup finds is reported with the file the first lookup tried.
bool Type28Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  report.clear();
  if (sentences.empty()) {
    report = FormatReportLine("\t\tNo sentences found for Item n\xB0%d!\n",
                              static_cast<int>(resource_id));
    return false;
  }
  for (auto& sentence : sentences) {
    const std::string missing = LookUpMissingMedium(root, quality_folders, sentence->media);
    if (!missing.empty()) report += FormatReportLine("\t\tFile not found: %s!\n", missing.c_str());
  }
  return report.empty();
}

}  // namespace lumora
