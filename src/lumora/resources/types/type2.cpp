#include <lumora/platform/archive.h>
#include <lumora/resources/types/type2.h>

namespace lumora {

void Type2Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  sentence.Serialize(ar);
  words.Serialize(ar);
}

}  // namespace lumora
