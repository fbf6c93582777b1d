#include <lumora/platform/archive.h>
#include <lumora/resources/types/type16.h>

namespace lumora {

void Type16Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(value);
  ar.Io(groupKey);
  text.Serialize(ar);
}

}  // namespace lumora
