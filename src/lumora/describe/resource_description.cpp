#include <lumora/describe/printable_text.h>
#include <lumora/describe/resource_describer.h>
#include <lumora/describe/resource_description.h>
#include <lumora/descriptions.h>
#include <lumora/resources/resource_id.h>

namespace lumora {
namespace {

Description Head(bool ok, uint32_t type, uint32_t resourceId) {
  return {{"ok", ok},
          {"type", type},
          {"resourceId", resourceId},
          {"course", CourseOf(resourceId)},
          {"number", NumberOf(resourceId)}};
}

}  // namespace

Description DescribeResource(const ExerciseResource& resource, uint32_t resourceId,
                             uint32_t disciplineId) {
  Description out = Head(true, resource.GetType(), resourceId);
  ResourceDescriber writer(DisciplineTextCodePage(disciplineId));
  if (!writer.Fields(resource, out)) return nullptr;
  // Some types have a field named "media" of their own: the media gathered get a name apart.
  out["allMedia"] = writer.media();
  return out;
}

Description DescribeUnreadResource(uint32_t type, uint32_t resourceId, const std::string& reason) {
  Description out = Head(false, type, resourceId);
  out["allMedia"] = Description::array();
  out["reason"] = PrintableText(reason);
  return out;
}

}  // namespace lumora
