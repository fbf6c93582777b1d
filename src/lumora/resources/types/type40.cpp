#include <lumora/platform/archive.h>
#include <lumora/resources/types/type40.h>

namespace lumora {

void ItemPart::Serialize(Archive& ar) {
  ar.Io(value);
  ar.IoBool(flag);
  if (ar.IsStoring()) {
    for (auto& element : elements) element->resourceId = 1;
  }
  elements.Serialize(ar);
  content.Serialize(ar);
}

void ExerciseItem::Serialize(Archive& ar) {
  content.Serialize(ar);
  firstParts.Serialize(ar);
  secondParts.Serialize(ar);
  media.Serialize(ar);
  records.Serialize(ar);
}

std::vector<ItemPart*> ExerciseItem::Parts() const {
  std::vector<ItemPart*> parts;
  parts.reserve(firstParts.size() + secondParts.size());
  for (auto& part : firstParts) parts.push_back(part.get());
  for (auto& part : secondParts) parts.push_back(part.get());
  return parts;
}

void Type40Resource::Serialize(Archive& ar) {
  if (ar.IsStoring()) {
    for (auto& item : items) {
      item->content.resourceId = resourceId;
      for (ItemPart* part : item->Parts()) part->content.resourceId = resourceId;
    }
  }
  SerializeHeadAndTag(ar);
  ar.Io(groupKey);
  items.Serialize(ar);
}

}  // namespace lumora
