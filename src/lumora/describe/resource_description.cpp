#include <lumora/describe/printable_text.h>
#include <lumora/describe/resource_describer.h>
#include <lumora/describe/resource_description.h>
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
  out["media"] = writer.media();
  return out;
}

Description DescribeUnreadResource(uint32_t type, uint32_t resourceId, const std::string& reason) {
  Description out = Head(false, type, resourceId);
  out["media"] = Description::array();
  out["reason"] = PrintableText(reason);
  return out;
}

}  // namespace lumora
