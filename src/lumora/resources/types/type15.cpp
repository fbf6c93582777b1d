#include <lumora/platform/archive.h>
#include <lumora/resources/types/type15.h>

namespace lumora {

void Type15Item::Serialize(Archive& ar) {
  ar.Io(value);
  text.Serialize(ar);
  answers.Serialize(ar);
}

void Type15Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(value);
  ar.Io(groupKey);
  plainText.Serialize(ar);
  items.Serialize(ar);
}

}  // namespace lumora
