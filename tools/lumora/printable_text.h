// How the tool prints: narrow texts as UTF-8 by the library's rule (describe/printable_text.h),
// and JSON, in which whatever ill-formed UTF-8 still reaches the printer is replaced by U+FFFD,
// so that no command fails on the text it prints.
#pragma once

#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

namespace lumora::cli {

// value as indented JSON on standard output, with a line break.
void PrintJson(const nlohmann::ordered_json& value);

}  // namespace lumora::cli
