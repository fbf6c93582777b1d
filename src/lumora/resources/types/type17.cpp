#include <lumora/platform/archive.h>
#include <lumora/resources/types/type17.h>

namespace lumora {

void Type17Item::Serialize(Archive& ar) {
  ar.Io(value);
  numbers.Serialize(ar);
}

void Type17Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  firstItems.Serialize(ar);
  secondItems.Serialize(ar);
}

}  // namespace lumora
