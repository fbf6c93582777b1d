#include <lumora/platform/archive.h>
#include <lumora/resources/types/type21.h>

namespace lumora {

void Type21Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(firstValue);
  ar.Io(secondValue);
  title.Serialize(ar);
  riddle.Serialize(ar);
  answer.Serialize(ar);
  clues.Serialize(ar);
}

}  // namespace lumora
