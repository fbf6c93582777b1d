#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type8.h>

#include <lumora/describe/resource_fields.h>

namespace lumora {
namespace {

// The video a type-8 resource asks about is one of its link records, shown with the others.
void Type8Fields(ResourceDescriber& w, const Type8Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["hasVideoLink"] = r.HasVideoLink();
  out["items"] = ListJson(r.items, [&w](const VideoQuestion& item) {
    return Description{{"question", w.Text(item.question)},
                       {"firstTexts", w.Texts(item.firstTexts)},
                       {"secondTexts", w.Texts(item.secondTexts)}};
  });
}

void Type1003Fields(ResourceDescriber& w, const Type1003Resource& r, Description& out) {
  out["script"] = {{"paragraphs", w.Texts(r.script.paragraphs)}};
  out["video"] = w.Media(r.video);
  out["title"] = w.Text(r.title);
  out["picture"] = w.Media(r.picture);
}

}  // namespace

std::span<const TypeFields> VideoTypeFields() {
  static constexpr TypeFields kRows[] = {
      {Type8Resource::kType, &FieldsOf<Type8Resource, &Type8Fields>},
      {Type1003Resource::kType, &FieldsOf<Type1003Resource, &Type1003Fields>},
  };
  return kRows;
}

}  // namespace lumora
