#include <lumora/platform/archive.h>
#include <lumora/resources/types/type14.h>

namespace lumora {

void Type14Entry::Serialize(Archive& ar) {
  ar.Io(value);
  text.Serialize(ar);
}

void Type14Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(value);
  ar.Io(firstWord);
  ar.Io(secondWord);
  ar.Io(groupKey);
  firstTitle.Serialize(ar);
  secondTitle.Serialize(ar);
  numbers.Serialize(ar);
  firstEntries.Serialize(ar);
  secondEntries.Serialize(ar);
  thirdEntries.Serialize(ar);
  media.Serialize(ar);
  closingText.Serialize(ar);
}

}  // namespace lumora
