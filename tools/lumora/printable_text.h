// How the tool turns narrow texts into the UTF-8 it prints, as text or as JSON.
//
// One rule for every narrow text: one that is already well-formed UTF-8 is printed as it is
// (paths and values written on this platform are UTF-8); any other is decoded from the code
// page it was written in. That is code page 1252, the Windows ANSI code page Content.ini files
// hold, for configuration values, the paths built from them and the library's own messages and
// labels; and the code page of the discipline's language for the narrow texts of its
// resources. A narrow text of no known code page (a command-line argument) has its ill-formed
// bytes replaced by U+FFFD. The JSON printer replaces whatever ill-formed UTF-8 still reaches
// it in the same way, so that no command fails on the text it prints.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora::cli {

inline constexpr uint32_t kWindowsAnsi = 1252;

std::string PrintableText(std::string_view narrow, uint32_t codePage);
std::string PrintableText(std::string_view narrow);

// value as indented JSON on standard output, with a line break.
void PrintJson(const nlohmann::ordered_json& value);

}  // namespace lumora::cli
