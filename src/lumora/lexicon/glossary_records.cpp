#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_fields.h>

namespace lumora {

void GloFNRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(fnId);
  ar.Io(writingId);
  ar.Io(attrB);
  ar.Io(kind);
  IoU32List(ar, codes);
  IoU32List(ar, classIds);
  ar.Io(level);
  ar.Io(attrC);
  ar.Io(letterId);
}

void GloWritingRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(writingId);
  IoText(ar, writing);
}

void GloLinkRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(fromId);
  ar.Io(toId);
  ar.Io(linkType);
  ar.Io(attrA);
  ar.Io(attrB);
  ar.Io(attrC);
}

void GloCloudRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(fnId);
  IoText(ar, cloudText);
}

void GloSoundRecord::Serialize(Archive& ar, uint32_t schema) {
  ar.Io(fnId);
  ar.Io(status);
  ar.Io(attrA);
  ar.Io(attrB);
  IoText(ar, text1);
  IoText(ar, text2);
  IoText(ar, text3);
  if (schema < 2) return;
  IoByteList(ar, qualitiesA);
  IoByteList(ar, qualitiesB);
}

void GloRecoRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(fnId);
  ar.Io(attrA);
  ar.Io(status);
  IoText(ar, text1);
  IoText(ar, text2);
}

void GloFNTranslationRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(language);
  ar.Io(fnId);
  IoText(ar, translation);
}

void GloCommentRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(fnId);
  ar.Io(commentType);
  IoText(ar, comment);
}

void GloFNSortedRecord::Serialize(Archive& ar, uint32_t) {
  ar.Io(position);
  ar.Io(fnId);
}

void GloFNLetterRecord::Serialize(Archive& ar, uint32_t) {
  IoText(ar, letter);
  ar.Io(letterId);
  ar.Io(attrA);
  ar.Io(attrB);
}

}  // namespace lumora
