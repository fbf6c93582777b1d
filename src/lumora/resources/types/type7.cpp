#include <lumora/platform/archive.h>
#include <lumora/resources/types/type7.h>

namespace lumora {

void Type7Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  text.Serialize(ar);
  choices.Serialize(ar);
  words.Serialize(ar);
}

}  // namespace lumora
