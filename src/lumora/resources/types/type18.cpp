#include <lumora/platform/archive.h>
#include <lumora/resources/types/type18.h>

namespace lumora {

void Type18Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  ar.Io(value);
}

}  // namespace lumora
