#include <lumora/resources/media_path_clearing.h>

namespace lumora {

void ClearMediaPaths(Type40Resource& resource) {
  for (auto& item : resource.items) {
    for (auto& media : item->media) media->path.clear();
    item->content.media.path.clear();
    for (ItemPart* part : item->Parts()) {
      part->content.media.path.clear();
      for (auto& element : part->elements) element->media.path.clear();
    }
  }
}

void ClearMediaPaths(Type5Resource& resource) {
  for (auto& sentence : resource.sentences) sentence->media.path.clear();
}

void ClearMediaPaths(Type10Resource& resource) {
  for (auto& word : resource.words) word->media.path.clear();
}

void ClearMediaPaths(Type28Resource& resource) {
  for (auto& sentence : resource.sentences) sentence->media.path.clear();
}

}  // namespace lumora
