#include <lumora/platform/archive.h>
#include <lumora/resources/types/sentence_practice.h>

namespace lumora {

void PracticeRecord::Serialize(Archive& ar) {
  text.Serialize(ar);
  texts.Serialize(ar);
}

void SentencePracticeResource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(value);
  ar.Io(groupKey);
  leadingRecord.Serialize(ar);
  records.Serialize(ar);
  plainText.Serialize(ar);
}

}  // namespace lumora
