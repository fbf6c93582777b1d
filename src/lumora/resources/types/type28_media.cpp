// Media resolution and verification of type-28 resources.
#include <lumora/resources/types/sentence_sounds.h>
#include <lumora/resources/types/type28.h>

namespace lumora {

void Type28Resource::ResolveMedia(const ContentRequest& request, const std::string& local_root,
                                  const std::string& chosen_root) {
  ResolveSentenceSounds(sentences, request, local_root, chosen_root);
}

bool Type28Resource::VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                                 std::string& report, uint32_t resource_id) {
  return VerifySentenceSounds(sentences, root, quality_folders, report, resource_id,
                              [](const MediaRef&) { return std::string(); });
}

}  // namespace lumora
