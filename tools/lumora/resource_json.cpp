#include "resource_json.h"

#include <cstdio>
#include <initializer_list>
#include <string>

#include "content_args.h"
#include "printable_text.h"
#include "resource_json_types.h"

namespace lumora::cli {
namespace {

bool Has(const nlohmann::ordered_json& value, std::initializer_list<const char*> keys) {
  if (!value.is_object()) return false;
  for (const char* key : keys) {
    if (!value.contains(key)) return false;
  }
  return true;
}

std::string TextLine(const nlohmann::ordered_json& text) {
  std::string line = text["text"].get<std::string>();
  if (text["codePage"] != 1252) line += " (code page " + text["codePage"].dump() + ")";
  return line;
}

std::string MediaLine(const nlohmann::ordered_json& media) {
  static const char* const kKinds[] = {"medium", "sound", "picture", "video"};
  const uint32_t kind = media["kind"].get<uint32_t>();
  char head[96];
  std::snprintf(head, sizeof head, "%s 0x%08x in r%07u: ", kind < 4 ? kKinds[kind] : "medium",
                media["resource"].get<uint32_t>(), media["folder"].get<uint32_t>());
  const std::string path = media["path"].get<std::string>();
  return head + (path.empty() ? std::string("(no path)") : path);
}

bool IsLeftOut(const nlohmann::ordered_json& value) {
  return value.is_null() || (value.is_string() && value.get<std::string>().empty()) ||
         (value.is_array() && value.empty()) || (value.is_object() && value.empty());
}

}  // namespace

nlohmann::ordered_json HumanForm(const nlohmann::ordered_json& value) {
  if (Has(value, {"codePage", "text"}) && !value.contains("language")) return TextLine(value);
  if (Has(value, {"kind", "folder", "resource", "path"})) {
    return value["kind"] == 0 ? nlohmann::ordered_json() : nlohmann::ordered_json(MediaLine(value));
  }
  if (value.is_array() && !value.empty() && Has(value[0], {"language", "text"})) {
    nlohmann::ordered_json texts = nlohmann::ordered_json::object();
    for (const auto& text : value) texts["language " + text["language"].dump()] = TextLine(text);
    return texts;
  }
  if (value.is_array()) {
    nlohmann::ordered_json out = nlohmann::ordered_json::array();
    for (const auto& element : value) out.push_back(HumanForm(element));
    return out;
  }
  if (!value.is_object()) return value;
  nlohmann::ordered_json out = nlohmann::ordered_json::object();
  for (const auto& [key, field] : value.items()) {
    if ((key == "isReference" && field == false) || (key == "reference" && field == 0)) continue;
    nlohmann::ordered_json human = HumanForm(field);
    if (!IsLeftOut(human)) out[key] = std::move(human);
  }
  return out;
}

nlohmann::ordered_json BytesJson(const ByteArray& bytes) {
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (uint8_t byte : bytes) out.push_back(byte);
  return out;
}

bool ResourceJsonWriter::Fields(const ExerciseResource& resource, nlohmann::ordered_json& out) {
  out["records"] = RecordsJson(resource.records);
  return ElementTypeFields(*this, resource, out) || TextTypeFields(*this, resource, out) ||
         MediaTypeFields(*this, resource, out) || VideoTypeFields(*this, resource, out);
}

nlohmann::ordered_json ResourceJsonWriter::Element(const ContentElement& element) {
  nlohmann::ordered_json out{{"isReference", element.isReference},
                             {"reference", element.reference}};
  // Resolving media expands a reference into the element it names; one left unexpanded (media
  // not resolved, or its file missing) holds nothing but the reference.
  if (element.isReference) return out;
  out["text"] = Text(element.text);
  out["translations"] = Texts(element.translations);
  out["note"] = Narrow(element.note);
  out["media"] = Media(element.media);
  out["firstAttributes"] = BytesJson(element.firstAttributes);
  out["secondAttributes"] = BytesJson(element.secondAttributes);
  return out;
}

nlohmann::ordered_json NumbersJson(const DWordArray& numbers) {
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (uint32_t n : numbers) out.push_back(n);
  return out;
}

std::string ResourceJsonWriter::Narrow(const std::string& text) const {
  return PrintableText(text, textCodePage_);
}

nlohmann::ordered_json ResourceJsonWriter::Strings(const StringArray& strings) const {
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (const std::string& text : strings.items) out.push_back(Narrow(text));
  return out;
}

nlohmann::ordered_json ResourceJsonWriter::Media(const MediaRef& media) {
  nlohmann::ordered_json out = MediaJson(media);
  if (media.kind != 0) media_.push_back(out);
  return out;
}

nlohmann::ordered_json ResourceJsonWriter::Text(const MarkedText& text) const {
  return {{"codePage", text.codePage},
          {"text", Utf8(text.text)},
          {"records16", RecordsJson(text.records16)},
          {"records24", RecordsJson(text.records24)}};
}

nlohmann::ordered_json ResourceJsonWriter::Texts(const LanguageTexts& texts) const {
  nlohmann::ordered_json out = nlohmann::ordered_json::array();
  for (uint32_t i = 0; i < texts.size(); ++i) {
    const CodePageText& text = *texts.TextAt(i);
    out.push_back(
        {{"language", texts.KeyAt(i)}, {"codePage", text.codePage}, {"text", Utf8(text.text)}});
  }
  return out;
}

nlohmann::ordered_json ResourceJsonWriter::Text(const CodePageText& text) const {
  return {{"codePage", text.codePage}, {"text", Utf8(text.text)}};
}

nlohmann::ordered_json ResourceJsonWriter::Texts(const TextList& texts) const {
  return ListJson(texts, [this](const MarkedText& text) { return Text(text); });
}

}  // namespace lumora::cli
