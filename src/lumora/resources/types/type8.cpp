#include <lumora/platform/archive.h>
#include <lumora/resources/link_record.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type8.h>

#include <algorithm>

namespace lumora {

void VideoQuestion::Serialize(Archive& ar) {
  question.Serialize(ar);
  firstTexts.Serialize(ar);
  secondTexts.Serialize(ar);
}

void Type8Resource::Serialize(Archive& ar) {
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  items.Serialize(ar);
}

bool IsVideoLink(const Record16& record) {
  const LinkRecord link(record);
  return link.kind() == kVideoLinkKind && link.targetTypeAndParagraph() == Type1003Resource::kType;
}

bool Type8Resource::HasVideoLink() const {
  return std::any_of(records.begin(), records.end(), IsVideoLink);
}

}  // namespace lumora
