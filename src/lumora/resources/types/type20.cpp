#include <lumora/platform/archive.h>
#include <lumora/resources/types/type20.h>

namespace lumora {

void PatchWorkPiece::Serialize(Archive& ar) {
  media.Serialize(ar);
  text.Serialize(ar);
}

void Type20Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(value);
  ar.Io(groupKey);
  pieces.Serialize(ar);
}

}  // namespace lumora
