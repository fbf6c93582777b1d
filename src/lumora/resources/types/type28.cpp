#include <lumora/platform/archive.h>
#include <lumora/resources/types/type28.h>

namespace lumora {

void Type28Sentence::Serialize(Archive& ar) {
  texts.Serialize(ar);
  media.Serialize(ar);
}

void Type28Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  sentences.Serialize(ar);
}

}  // namespace lumora
