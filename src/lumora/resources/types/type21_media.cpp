// Media resolution and verification of type-21 resources.
#include <lumora/resources/media_check.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type21.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {

void Type21Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  for (auto& clue : clues) {
    clue->media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// Without clues the resource is reported under its id. Otherwise every clue medium that no
// lookup finds ("noy" is the text the report has always carried) and every missing file of a
// linked resource are reported, in that order.
bool Type21Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  report.clear();
  if (clues.empty()) {
    report = FormatReportLine("\t\tNo Clues found for Item: %d!\n", static_cast<int>(resource_id));
    return false;
  }
  for (auto& clue : clues) {
    const std::string missing = LookUpMissingMedium(root, quality_folders, clue->media);
    if (!missing.empty()) report += FormatReportLine("\t\tFile noy found: %s!\n", missing.c_str());
  }
  for (const LinkedFile& file : LinkedResourceFiles(root, records, resource_id)) {
    if (!FileListed(file.path))
      report += FormatReportLine("\t\tFile not found: %s!\n", file.path.c_str());
  }
  return report.empty();
}

}  // namespace lumora
