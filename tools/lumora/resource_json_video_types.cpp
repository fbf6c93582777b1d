#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type8.h>

#include "resource_json_types.h"

namespace lumora::cli {
namespace {

using Json = nlohmann::ordered_json;

// The video a type-8 resource asks about is one of its link records, shown with the others.
void Type8Fields(ResourceJsonWriter& w, const Type8Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["hasVideoLink"] = r.HasVideoLink();
  out["items"] = ListJson(r.items, [&w](const VideoQuestion& item) {
    return Json{{"question", w.Text(item.question)},
                {"firstTexts", w.Texts(item.firstTexts)},
                {"secondTexts", w.Texts(item.secondTexts)}};
  });
}

void Type1003Fields(ResourceJsonWriter& w, const Type1003Resource& r, Json& out) {
  out["script"] = {{"paragraphs", w.Texts(r.script.paragraphs)}};
  out["video"] = w.Media(r.video);
  out["title"] = w.Text(r.title);
  out["picture"] = w.Media(r.picture);
}

}  // namespace

bool VideoTypeFields(ResourceJsonWriter& w, const ExerciseResource& resource, Json& out) {
  switch (resource.GetType()) {
    case Type8Resource::kType:
      Type8Fields(w, static_cast<const Type8Resource&>(resource), out);
      return true;
    case Type1003Resource::kType:
      Type1003Fields(w, static_cast<const Type1003Resource&>(resource), out);
      return true;
    default:
      return false;
  }
}

}  // namespace lumora::cli
