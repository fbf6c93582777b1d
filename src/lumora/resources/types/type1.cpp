#include <lumora/platform/archive.h>
#include <lumora/resources/types/type1.h>

namespace lumora {

void Type1Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(value);
  ar.Io(groupKey);
  firstTexts.Serialize(ar);
  secondTexts.Serialize(ar);
}

}  // namespace lumora
