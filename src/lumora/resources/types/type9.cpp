#include <lumora/platform/archive.h>
#include <lumora/resources/types/type9.h>

namespace lumora {

void Type9Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  words.Serialize(ar);
  strings.Serialize(ar);
  media.Serialize(ar);
}

}  // namespace lumora
