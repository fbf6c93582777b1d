// Media resolution, verification and export copying of type-5 resources. Each sentence has
// one sound; its texts carry no media.
#include <lumora/resources/media_check.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/types/sentence_sounds.h>
#include <lumora/resources/types/type5.h>

namespace lumora {

void Type5Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                 const std::string& chosen_root) {
  ResolveSentenceSounds(sentences, request, local_root, chosen_root);
}

// A sound that is found, but not in every quality folder the export fills, is reported for
// each folder that lacks it.
bool Type5Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                std::string& report, uint32_t resource_id) {
  return VerifySentenceSounds(
      sentences, root, quality_folders, report, resource_id, [&](const MediaRef& media) {
        std::string lines;
        for (const std::string& path : MissingMediumCopies(root, quality_folders, media)) {
          lines += FormatReportLine("\t\tFile not found: %s\n", path.c_str());
        }
        return lines;
      });
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
