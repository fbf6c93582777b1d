#include "json_entry.h"

#include <algorithm>

namespace lumora::cli {
namespace {

std::string Quoted(const char* name) { return std::string("\"") + name + "\""; }

// A value as the person wrote it, shortened so that a long text does not fill the screen.
std::string Shown(const nlohmann::json& value) {
  constexpr size_t kShown = 40;
  std::string text = value.dump();
  if (text.size() > kShown) text = text.substr(0, kShown) + "...";
  return text;
}

std::string RangeText(const IntegerRange& range) {
  return std::string(range.what) + ", an integer from " + std::to_string(range.min) + " to " +
         std::to_string(range.max);
}

// The integer a JSON number stands for, when it is one of the range. A number written with a
// fraction or an exponent is not taken even when its value is whole: the lists hold counts and
// identifiers, never measurements.
std::optional<int64_t> InRange(const nlohmann::json& value, const IntegerRange& range) {
  if (value.is_number_unsigned()) {
    const uint64_t number = value.get<uint64_t>();
    if (number > static_cast<uint64_t>(range.max)) return std::nullopt;
    return static_cast<int64_t>(number);
  }
  if (!value.is_number_integer()) return std::nullopt;
  const int64_t number = value.get<int64_t>();
  if (number < range.min || number > range.max) return std::nullopt;
  return number;
}

}  // namespace

JsonEntry::JsonEntry(const nlohmann::json& entry, std::string where,
                     std::vector<const char*> members, Problems& problems)
    : where_(std::move(where)), problems_(problems) {
  if (!entry.is_object()) {
    problems_.push_back(where_ + ": is " + Shown(entry) + ", not an object {...}");
    return;
  }
  object_ = &entry;
  for (const auto& item : entry.items()) {
    const std::string& name = item.key();
    const bool known = std::any_of(members.begin(), members.end(),
                                   [&](const char* member) { return name == member; });
    if (known) continue;
    std::string list;
    for (const char* member : members) list += (list.empty() ? "" : ", ") + Quoted(member);
    Problem(Quoted(name.c_str()) + " is not a member here (the members: " + list + ")");
  }
}

void JsonEntry::Problem(const std::string& text) const {
  problems_.push_back(where_ + ": " + text);
}

const nlohmann::json* JsonEntry::Member(const char* name, bool required) {
  if (object_ == nullptr) return nullptr;
  const auto found = object_->find(name);
  if (found != object_->end()) return &*found;
  if (required) Problem(Quoted(name) + " is missing");
  return nullptr;
}

std::optional<int64_t> JsonEntry::Integer(const char* name, const IntegerRange& range,
                                          bool required) {
  const nlohmann::json* value = Member(name, required);
  if (value == nullptr) return std::nullopt;
  const std::optional<int64_t> number = InRange(*value, range);
  if (!number) Problem(Quoted(name) + " is " + Shown(*value) + ", not " + RangeText(range));
  return number;
}

std::optional<std::string> JsonEntry::Text(const char* name, bool required) {
  const nlohmann::json* value = Member(name, required);
  if (value == nullptr) return std::nullopt;
  if (!value->is_string()) {
    Problem(Quoted(name) + " is " + Shown(*value) + ", not a text \"...\"");
    return std::nullopt;
  }
  return value->get<std::string>();
}

std::optional<int64_t> IntegerElement(const nlohmann::json& value, const std::string& where,
                                      const IntegerRange& range, Problems& problems) {
  const std::optional<int64_t> number = InRange(value, range);
  if (!number) problems.push_back(where + ": is " + Shown(value) + ", not " + RangeText(range));
  return number;
}

}  // namespace lumora::cli
