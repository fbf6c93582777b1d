// Media resolution, verification and export copying of type-10 resources.
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/type10.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {

void Type10Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  for (auto& word : words) {
    word->media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// Without words the resource is reported under its id. Otherwise every medium that no lookup
// finds (with the file the first lookup tried) and every missing file of a linked resource
// are reported, in that order.
bool Type10Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  report.clear();
  if (words.empty()) {
    report =
        FormatReportLine("\t\tNo words found for Item n\xB0%d!\n", static_cast<int>(resource_id));
    return false;
  }
  for (auto& word : words) {
    const std::string missing = LookUpMissingMedium(root, quality_folders, word->media);
    if (!missing.empty()) report += FormatReportLine("\t\tFile not found: %s!\n", missing.c_str());
  }
  for (const LinkedFile& file : LinkedResourceFiles(root, records, resource_id)) {
    if (!FileListed(file.path))
      report += FormatReportLine("\t\tFile not found: %s!\n", file.path.c_str());
  }
  return report.empty();
}

bool Type10Resource::CopyMedia(const std::string& destination_root, uint32_t destination_id,
                               const ByteArray& quality_folders, const std::string& source_root) {
  if (words.empty()) return false;
  const MediaCopier copier(destination_root, destination_id, GetType(), quality_folders,
                           source_root);
  for (auto& word : words) {
    if (!copier.Copy(word->media)) return false;
  }
  return true;
}

}  // namespace lumora
