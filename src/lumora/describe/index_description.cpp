#include <lumora/describe/index_description.h>
#include <lumora/describe/printable_text.h>
#include <lumora/describe/resource_describer.h>
#include <lumora/descriptions.h>
#include <lumora/frame/resource_reading.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/types/type1005_index.h>

namespace lumora {
namespace {

MediaRef WithPath(const MediaRef& media, const ContentRequest& request) {
  MediaRef resolved(media.kind, media.folder, media.resource);
  MediaPathFor(&request, resolved, &resolved.path);
  return resolved;
}

void AddGroups(const ResourceGroups& groups, Description& out) {
  out["sorted"] = groups.sorted();
  Description list = Description::array();
  for (uint32_t i = 0; i < groups.size(); ++i) {
    list.push_back({{"key", groups.keys()[i]}, {"resources", NumbersJson(groups.GroupAt(i))}});
  }
  out["groups"] = list;
}

void AddDescriptions(const Type2000Index& index, const ContentRequest& request, Description& out) {
  ResourceDescriber writer(DisciplineTextCodePage(request.disciplineId));
  Description entries = Description::array();
  for (uint32_t i = 0; i < index.table.size(); ++i) {
    const Type2000Entry& entry = *index.table.ObjectAt(i);
    entries.push_back({{"number", index.table.KeyAt(i)},
                       {"attribute", entry.attribute},
                       {"titles", writer.Texts(entry.titles)},
                       {"media", DescribeMedia(WithPath(entry.media, request))}});
  }
  out["entries"] = entries;
}

void AddElements(const Type1005Index& index, Description& out) {
  Description entries = Description::array();
  for (uint32_t i = 0; i < index.table.size(); ++i) {
    const Type1005Entry& entry = *index.table.ObjectAt(i);
    entries.push_back({{"number", index.table.KeyAt(i)},
                       {"flagA", entry.flagA},
                       {"flagB", entry.flagB},
                       {"values", BytesJson(entry.values)}});
  }
  out["entries"] = entries;
}

Description TypeDescription(uint32_t type, const TypeIndex& index, const ContentRequest& request) {
  Description out{{"type", type}};
  if (const auto* groups = dynamic_cast<const GroupsIndex*>(&index)) {
    AddGroups(groups->groups, out);
  } else if (const auto* descriptions = dynamic_cast<const Type2000Index*>(&index)) {
    AddDescriptions(*descriptions, request, out);
  } else if (const auto* elements = dynamic_cast<const Type1005Index*>(&index)) {
    AddElements(*elements, out);
  } else if (const auto* plain = dynamic_cast<const PlainNumberIndex*>(&index)) {
    out["numbers"] = NumbersJson(plain->numbers);
  }
  return out;
}

}  // namespace

Description DescribeIndex(const ResourceIndex& index, const ContentRequest& request,
                          std::optional<uint32_t> onlyType) {
  Description types = Description::array();
  for (uint32_t type : index.types()) {
    if (onlyType && *onlyType != type) continue;
    types.push_back(TypeDescription(type, *index.FindType(type), request));
  }
  return {{"types", types}};
}

}  // namespace lumora
