#include <lumora/resources/types/sentence_practice.h>
#include <lumora/resources/types/type1.h>
#include <lumora/resources/types/type12.h>
#include <lumora/resources/types/type13.h>
#include <lumora/resources/types/type15.h>
#include <lumora/resources/types/type16.h>
#include <lumora/resources/types/type17.h>
#include <lumora/resources/types/type18.h>
#include <lumora/resources/types/type19.h>
#include <lumora/resources/types/type2.h>
#include <lumora/resources/types/type3.h>
#include <lumora/resources/types/type4.h>
#include <lumora/resources/types/type7.h>

#include <lumora/describe/resource_fields.h>

namespace lumora {
namespace {

void Type1Fields(ResourceDescriber& w, const Type1Resource& r, Description& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["firstTexts"] = w.Texts(r.firstTexts);
  out["secondTexts"] = w.Texts(r.secondTexts);
}

void Type2Fields(ResourceDescriber& w, const Type2Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["sentence"] = w.Text(r.sentence);
  out["words"] = w.Strings(r.words);
}

void Type3Fields(ResourceDescriber& w, const Type3Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["texts"] = w.Texts(r.texts);
}

void Type4Fields(ResourceDescriber& w, const Type4Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["plainText"] = w.Text(r.plainText);
  out["firstText"] = w.Text(r.firstText);
  out["secondText"] = w.Text(r.secondText);
}

void Type7Fields(ResourceDescriber& w, const Type7Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["text"] = w.Text(r.text);
  out["choices"] = w.Texts(r.choices);
  out["words"] = w.Strings(r.words);
  out["transientText"] = w.Narrow(r.transientText);
}

Description PracticeRecordJson(ResourceDescriber& w, const PracticeRecord& record) {
  return {{"text", w.Text(record.text)}, {"texts", w.Texts(record.texts)}};
}

void SentencePracticeFields(ResourceDescriber& w, const SentencePracticeResource& r,
                            Description& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["leadingRecord"] = PracticeRecordJson(w, r.leadingRecord);
  out["records"] = ListJson(
      r.records, [&w](const PracticeRecord& record) { return PracticeRecordJson(w, record); });
  out["plainText"] = w.Text(r.plainText);
}

void Type15Fields(ResourceDescriber& w, const Type15Resource& r, Description& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["plainText"] = w.Text(r.plainText);
  out["items"] = ListJson(r.items, [&w](const Type15Item& item) {
    return Description{{"value", item.value},
                       {"text", w.Text(item.text)},
                       {"answers", w.Texts(item.answers.texts)}};
  });
}

void Type16Fields(ResourceDescriber& w, const Type16Resource& r, Description& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["text"] = w.Text(r.text);
}

Description Type17ItemsJson(const ObjectList<Type17Item>& items) {
  return ListJson(items, [](const Type17Item& item) {
    return Description{{"value", item.value}, {"numbers", NumbersJson(item.numbers)}};
  });
}

void Type17Fields(ResourceDescriber&, const Type17Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["firstItems"] = Type17ItemsJson(r.firstItems);
  out["secondItems"] = Type17ItemsJson(r.secondItems);
}

void Type18Fields(ResourceDescriber&, const Type18Resource& r, Description& out) {
  out["groupKey"] = r.groupKey;
  out["value"] = r.value;
}

void Type19Fields(ResourceDescriber& w, const Type19Resource& r, Description& out) {
  out["firstValue"] = r.firstValue;
  out["secondValue"] = r.secondValue;
  out["groupKey"] = r.groupKey;
  out["positions"] = NumbersJson(r.positions);
  out["names"] = w.Strings(r.names);
}

}  // namespace

std::span<const TypeFields> TextTypeFields() {
  static constexpr TypeFields kRows[] = {
      {Type1Resource::kType, &FieldsOf<Type1Resource, &Type1Fields>},
      {Type2Resource::kType, &FieldsOf<Type2Resource, &Type2Fields>},
      {Type3Resource::kType, &FieldsOf<Type3Resource, &Type3Fields>},
      {Type4Resource::kType, &FieldsOf<Type4Resource, &Type4Fields>},
      {Type7Resource::kType, &FieldsOf<Type7Resource, &Type7Fields>},
      {Type12Resource::kType, &FieldsOf<SentencePracticeResource, &SentencePracticeFields>},
      {Type13Resource::kType, &FieldsOf<SentencePracticeResource, &SentencePracticeFields>},
      {Type15Resource::kType, &FieldsOf<Type15Resource, &Type15Fields>},
      {Type16Resource::kType, &FieldsOf<Type16Resource, &Type16Fields>},
      {Type17Resource::kType, &FieldsOf<Type17Resource, &Type17Fields>},
      {Type18Resource::kType, &FieldsOf<Type18Resource, &Type18Fields>},
      {Type19Resource::kType, &FieldsOf<Type19Resource, &Type19Fields>},
  };
  return kRows;
}

}  // namespace lumora
