#include <lumora/platform/archive.h>
#include <lumora/resources/types/type3.h>

namespace lumora {

void Type3Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  texts.Serialize(ar);
}

}  // namespace lumora
