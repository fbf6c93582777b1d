#include <lumora/platform/archive.h>
#include <lumora/resources/types/type4.h>

namespace lumora {

void Type4Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  plainText.Serialize(ar);
  firstText.Serialize(ar);
  secondText.Serialize(ar);
}

}  // namespace lumora
