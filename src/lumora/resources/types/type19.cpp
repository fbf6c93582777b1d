#include <lumora/platform/archive.h>
#include <lumora/resources/types/type19.h>

namespace lumora {

void Type19Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(firstValue);
  ar.Io(secondValue);
  ar.Io(groupKey);
  positions.Serialize(ar);
  names.Serialize(ar);
}

}  // namespace lumora
