#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>

#include <lumora/describe/resource_fields.h>

namespace lumora {
namespace {

Description PartsJson(ResourceDescriber& writer, const ObjectList<ItemPart>& parts) {
  Description out = Description::array();
  for (uint32_t i = 0; i < parts.size(); ++i) {
    const ItemPart& part = parts[i];
    Description elements = Description::array();
    for (uint32_t e = 0; e < part.elements.size(); ++e) {
      elements.push_back(writer.Element(part.elements[e]));
    }
    out.push_back({{"value", part.value},
                   {"flag", part.flag},
                   {"elements", elements},
                   {"content", writer.Element(part.content)}});
  }
  return out;
}

Description ItemJson(ResourceDescriber& writer, const ExerciseItem& item) {
  Description out{{"content", writer.Element(item.content)}};
  out["firstParts"] = PartsJson(writer, item.firstParts);
  out["secondParts"] = PartsJson(writer, item.secondParts);
  Description media = Description::array();
  for (uint32_t i = 0; i < item.media.size(); ++i) media.push_back(writer.Media(item.media[i]));
  out["media"] = media;
  out["records"] = RecordsJson(item.records);
  return out;
}

void Type40Fields(ResourceDescriber& writer, const Type40Resource& resource, Description& out) {
  out["groupKey"] = resource.groupKey;
  Description items = Description::array();
  for (uint32_t i = 0; i < resource.items.size(); ++i) {
    items.push_back(ItemJson(writer, resource.items[i]));
  }
  out["items"] = items;
}

void ElementFields(ResourceDescriber& writer, const ContentElement& element, Description& out) {
  out.update(writer.Element(element));
}

}  // namespace

std::span<const TypeFields> ElementTypeFields() {
  static constexpr TypeFields kRows[] = {
      {kContentElementType, &FieldsOf<ContentElement, &ElementFields>},
      {Type40Resource::kType, &FieldsOf<Type40Resource, &Type40Fields>},
  };
  return kRows;
}

}  // namespace lumora
