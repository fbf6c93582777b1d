#include "tree_print.h"

#include <ostream>
#include <string>

namespace lumora::cli {
namespace {

bool IsPlain(const nlohmann::ordered_json& value) {
  return !value.is_object() && !(value.is_array() && !value.empty() && !value[0].is_primitive());
}

// Strings without quotes, lists of plain values as "[a, b]".
std::string PlainText(const nlohmann::ordered_json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (!value.is_array()) return value.dump();
  std::string text = "[";
  for (size_t i = 0; i < value.size(); ++i) {
    if (i > 0) text += ", ";
    text += PlainText(value[i]);
  }
  text.push_back(']');
  return text;
}

void PrintField(std::ostream& out, const std::string& label, const nlohmann::ordered_json& value,
                int indent) {
  out << std::string(indent, ' ') << label;
  if (IsPlain(value)) {
    out << ": " << PlainText(value) << '\n';
  } else {
    out << '\n';
    PrintTree(out, value, indent + 2);
  }
}

}  // namespace

void PrintTree(std::ostream& out, const nlohmann::ordered_json& value, int indent) {
  if (value.is_object()) {
    for (const auto& [key, field] : value.items()) PrintField(out, key, field, indent);
  } else if (value.is_array() && !IsPlain(value)) {
    for (size_t i = 0; i < value.size(); ++i) {
      std::string label = "[";
      label.append(std::to_string(i)).push_back(']');
      PrintField(out, label, value[i], indent);
    }
  } else {
    out << std::string(indent, ' ') << PlainText(value) << '\n';
  }
}

}  // namespace lumora::cli
