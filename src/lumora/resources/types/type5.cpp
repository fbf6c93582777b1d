#include <lumora/platform/archive.h>
#include <lumora/resources/types/type5.h>

namespace lumora {

void DictationSentence::Serialize(Archive& ar) {
  ar.Io(value);
  texts.Serialize(ar);
  media.Serialize(ar);
}

void Type5Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  title.Serialize(ar);
  sentences.Serialize(ar);
}

}  // namespace lumora
