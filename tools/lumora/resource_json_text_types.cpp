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

#include "resource_json_types.h"

namespace lumora::cli {
namespace {

using Json = nlohmann::ordered_json;

void Type1Fields(ResourceJsonWriter& w, const Type1Resource& r, Json& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["firstTexts"] = w.Texts(r.firstTexts);
  out["secondTexts"] = w.Texts(r.secondTexts);
}

void Type2Fields(ResourceJsonWriter& w, const Type2Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["sentence"] = w.Text(r.sentence);
  out["words"] = w.Strings(r.words);
}

void Type3Fields(ResourceJsonWriter& w, const Type3Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["texts"] = w.Texts(r.texts);
}

void Type4Fields(ResourceJsonWriter& w, const Type4Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["plainText"] = w.Text(r.plainText);
  out["firstText"] = w.Text(r.firstText);
  out["secondText"] = w.Text(r.secondText);
}

void Type7Fields(ResourceJsonWriter& w, const Type7Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["text"] = w.Text(r.text);
  out["choices"] = w.Texts(r.choices);
  out["words"] = w.Strings(r.words);
  out["transientText"] = w.Narrow(r.transientText);
}

Json PracticeRecordJson(ResourceJsonWriter& w, const PracticeRecord& record) {
  return {{"text", w.Text(record.text)}, {"texts", w.Texts(record.texts)}};
}

void SentencePracticeFields(ResourceJsonWriter& w, const SentencePracticeResource& r, Json& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["leadingRecord"] = PracticeRecordJson(w, r.leadingRecord);
  out["records"] = ListJson(
      r.records, [&w](const PracticeRecord& record) { return PracticeRecordJson(w, record); });
  out["plainText"] = w.Text(r.plainText);
}

void Type15Fields(ResourceJsonWriter& w, const Type15Resource& r, Json& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["plainText"] = w.Text(r.plainText);
  out["items"] = ListJson(r.items, [&w](const Type15Item& item) {
    return Json{{"value", item.value},
                {"text", w.Text(item.text)},
                {"answers", w.Texts(item.answers.texts)}};
  });
}

void Type16Fields(ResourceJsonWriter& w, const Type16Resource& r, Json& out) {
  out["value"] = r.value;
  out["groupKey"] = r.groupKey;
  out["text"] = w.Text(r.text);
}

Json Type17ItemsJson(const ObjectList<Type17Item>& items) {
  return ListJson(items, [](const Type17Item& item) {
    return Json{{"value", item.value}, {"numbers", NumbersJson(item.numbers)}};
  });
}

void Type17Fields(const Type17Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["firstItems"] = Type17ItemsJson(r.firstItems);
  out["secondItems"] = Type17ItemsJson(r.secondItems);
}

void Type18Fields(const Type18Resource& r, Json& out) {
  out["groupKey"] = r.groupKey;
  out["value"] = r.value;
}

void Type19Fields(ResourceJsonWriter& w, const Type19Resource& r, Json& out) {
  out["firstValue"] = r.firstValue;
  out["secondValue"] = r.secondValue;
  out["groupKey"] = r.groupKey;
  out["positions"] = NumbersJson(r.positions);
  out["names"] = w.Strings(r.names);
}

}  // namespace

bool TextTypeFields(ResourceJsonWriter& w, const ExerciseResource& resource, Json& out) {
  switch (resource.GetType()) {
    case Type1Resource::kType:
      Type1Fields(w, static_cast<const Type1Resource&>(resource), out);
      return true;
    case Type2Resource::kType:
      Type2Fields(w, static_cast<const Type2Resource&>(resource), out);
      return true;
    case Type3Resource::kType:
      Type3Fields(w, static_cast<const Type3Resource&>(resource), out);
      return true;
    case Type4Resource::kType:
      Type4Fields(w, static_cast<const Type4Resource&>(resource), out);
      return true;
    case Type7Resource::kType:
      Type7Fields(w, static_cast<const Type7Resource&>(resource), out);
      return true;
    case Type12Resource::kType:
    case Type13Resource::kType:
      SentencePracticeFields(w, static_cast<const SentencePracticeResource&>(resource), out);
      return true;
    case Type15Resource::kType:
      Type15Fields(w, static_cast<const Type15Resource&>(resource), out);
      return true;
    case Type16Resource::kType:
      Type16Fields(w, static_cast<const Type16Resource&>(resource), out);
      return true;
    case Type17Resource::kType:
      Type17Fields(static_cast<const Type17Resource&>(resource), out);
      return true;
    case Type18Resource::kType:
      Type18Fields(static_cast<const Type18Resource&>(resource), out);
      return true;
    case Type19Resource::kType:
      Type19Fields(w, static_cast<const Type19Resource&>(resource), out);
      return true;
    default:
      return false;
  }
}

}  // namespace lumora::cli
