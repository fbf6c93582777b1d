#include <lumora/platform/archive.h>
#include <lumora/resources/types/type1010.h>

namespace lumora {

void Type1010Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  for (size_t i = 0; i < kTextCount; ++i) {
    if (i == kTextCount - 1) picture.Serialize(ar);  // the picture comes before the last text
    texts[i].text.Serialize(ar);
    texts[i].translations.Serialize(ar);
  }
  moreTexts.Serialize(ar);
}

}  // namespace lumora
