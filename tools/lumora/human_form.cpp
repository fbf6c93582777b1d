#include "human_form.h"

#include <cstdio>
#include <initializer_list>
#include <string>

namespace lumora::cli {
namespace {

bool Has(const Description& value, std::initializer_list<const char*> keys) {
  if (!value.is_object()) return false;
  for (const char* key : keys) {
    if (!value.contains(key)) return false;
  }
  return true;
}

std::string TextLine(const Description& text) {
  std::string line = text["text"].get<std::string>();
  if (text["codePage"] != 1252) line += " (code page " + text["codePage"].dump() + ")";
  return line;
}

std::string MediaLine(const Description& media) {
  static const char* const kKinds[] = {"medium", "sound", "picture", "video"};
  const uint32_t kind = media["kind"].get<uint32_t>();
  char head[96];
  std::snprintf(head, sizeof head, "%s 0x%08x in r%07u: ", kind < 4 ? kKinds[kind] : "medium",
                media["resource"].get<uint32_t>(), media["folder"].get<uint32_t>());
  const std::string path = media["path"].get<std::string>();
  return head + (path.empty() ? std::string("(no path)") : path);
}

bool IsLeftOut(const Description& value) {
  return value.is_null() || (value.is_string() && value.get<std::string>().empty()) ||
         (value.is_array() && value.empty()) || (value.is_object() && value.empty());
}

}  // namespace

Description HumanForm(const Description& value) {
  if (Has(value, {"codePage", "text"}) && !value.contains("language")) return TextLine(value);
  if (Has(value, {"kind", "folder", "resource", "path"})) {
    return value["kind"] == 0 ? Description() : Description(MediaLine(value));
  }
  if (value.is_array() && !value.empty() && Has(value[0], {"language", "text"})) {
    Description texts = Description::object();
    for (const auto& text : value) texts["language " + text["language"].dump()] = TextLine(text);
    return texts;
  }
  if (value.is_array()) {
    Description out = Description::array();
    for (const auto& element : value) out.push_back(HumanForm(element));
    return out;
  }
  if (!value.is_object()) return value;
  Description out = Description::object();
  for (const auto& [key, field] : value.items()) {
    if ((key == "isReference" && field == false) || (key == "reference" && field == 0)) continue;
    Description human = HumanForm(field);
    if (!IsLeftOut(human)) out[key] = std::move(human);
  }
  return out;
}

}  // namespace lumora::cli
