// Media of the types whose sentences each carry one sound (dictations and type 28): the paths
// are resolved sentence by sentence, and the verification reports a resource without sentences
// under its id and every sound that no lookup finds with the file the first lookup tried.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/media_check.h>
#include <lumora/resources/report_format.h>

#include <cstdint>
#include <string>

namespace lumora {

template <typename SentenceList>
void ResolveSentenceSounds(SentenceList& sentences, const ContentRequest& request,
                           const std::string& local_root, const std::string& chosen_root) {
  for (auto& sentence : sentences) {
    sentence->media.BuildPath(local_root, request.pathKind, chosen_root, request.selector());
  }
}

// `found(media)` gives the type's own report lines for a sound that the lookup found.
template <typename SentenceList, typename FoundFn>
bool VerifySentenceSounds(const SentenceList& sentences, const std::string& root,
                          const ByteArray& quality_folders, std::string& report,
                          uint32_t resource_id, FoundFn found) {
  report.clear();
  if (sentences.empty()) {
    report = FormatReportLine("\t\tNo sentences found for Item n\xB0%d!\n",
                              static_cast<int>(resource_id));
    return false;
  }
  for (auto& sentence : sentences) {
    const std::string missing = LookUpMissingMedium(root, quality_folders, sentence->media);
    report += missing.empty() ? found(sentence->media)
                              : FormatReportLine("\t\tFile not found: %s!\n", missing.c_str());
  }
  return report.empty();
}

}  // namespace lumora
