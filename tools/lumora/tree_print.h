// The human form of a command's JSON answer: one "key: value" line per field, nested objects
// and lists of objects indented below their key, lists of plain values on one line.
#pragma once

#include <nlohmann/json.hpp>

#include <iosfwd>

namespace lumora::cli {

void PrintTree(std::ostream& out, const nlohmann::ordered_json& value, int indent = 0);

}  // namespace lumora::cli
