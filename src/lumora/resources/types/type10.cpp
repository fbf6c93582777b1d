#include <lumora/platform/archive.h>
#include <lumora/resources/types/type10.h>

namespace lumora {

void Type10Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  instruction.Serialize(ar);
  words.Serialize(ar);
}

}  // namespace lumora
