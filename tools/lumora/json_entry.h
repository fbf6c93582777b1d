// Reading the members of one entry of a JSON list that a person wrote, so that every mistake is
// told in words with the entry and member it is in (`packages[0]: "version" is missing`) instead
// of stopping at the first one with the JSON library's own text.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora::cli {

// The problems found so far, one line each.
using Problems = std::vector<std::string>;

// An integer member's allowed values and what a value of that range is, in words.
struct IntegerRange {
  int64_t min;
  int64_t max;
  const char* what;  // e.g. "a package identifier"
};

inline constexpr IntegerRange kInt32Range{INT32_MIN, INT32_MAX, "a 32-bit integer"};

class JsonEntry {
 public:
  // `where` names the entry (`packages[0]`); `members` are the names it may hold: any other is
  // a problem, as is an entry that is not an object.
  JsonEntry(const nlohmann::json& entry, std::string where, std::vector<const char*> members,
            Problems& problems);

  bool ok() const { return object_ != nullptr; }
  const std::string& where() const { return where_; }

  // The member's value when present and valid; a problem, and nothing, when it is missing (if
  // required), not an integer or out of its range.
  std::optional<int64_t> Integer(const char* name, const IntegerRange& range, bool required = true);
  std::optional<std::string> Text(const char* name, bool required = true);

  void Problem(const std::string& text) const;

 private:
  const nlohmann::json* Member(const char* name, bool required);

  const nlohmann::json* object_ = nullptr;
  std::string where_;
  Problems& problems_;
};

// An integer element of a list of numbers (`packageIds[2]`); a problem and nothing when it is not
// an integer of the range.
std::optional<int64_t> IntegerElement(const nlohmann::json& value, const std::string& where,
                                      const IntegerRange& range, Problems& problems);

}  // namespace lumora::cli
