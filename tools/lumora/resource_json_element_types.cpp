#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>

#include "resource_json_types.h"

namespace lumora::cli {
namespace {

nlohmann::ordered_json PartsJson(ResourceJsonWriter& writer, const ObjectList<ItemPart>& parts) {
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < parts.size(); ++i) {
    const ItemPart& part = parts[i];
    nlohmann::ordered_json elements = nlohmann::ordered_json::array();
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

nlohmann::ordered_json ItemJson(ResourceJsonWriter& writer, const ExerciseItem& item) {
  nlohmann::ordered_json out{{"content", writer.Element(item.content)}};
  out["firstParts"] = PartsJson(writer, item.firstParts);
  out["secondParts"] = PartsJson(writer, item.secondParts);
  nlohmann::ordered_json media = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < item.media.size(); ++i) media.push_back(writer.Media(item.media[i]));
  out["media"] = media;
  out["records"] = RecordsJson(item.records);
  return out;
}

void Type40Fields(ResourceJsonWriter& writer, const Type40Resource& resource,
                  nlohmann::ordered_json& out) {
  out["groupKey"] = resource.groupKey;
  nlohmann::ordered_json items = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < resource.items.size(); ++i) {
    items.push_back(ItemJson(writer, resource.items[i]));
  }
  out["items"] = items;
}

}  // namespace

bool ElementTypeFields(ResourceJsonWriter& writer, const ExerciseResource& resource,
                       nlohmann::ordered_json& out) {
  switch (resource.GetType()) {
    case kContentElementType:
      out.update(writer.Element(static_cast<const ContentElement&>(resource)));
      return true;
    case Type40Resource::kType:
      Type40Fields(writer, static_cast<const Type40Resource&>(resource), out);
      return true;
    default:
      return false;
  }
}

}  // namespace lumora::cli
