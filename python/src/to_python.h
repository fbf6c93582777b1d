// The library's documents as plain Python values: dict, list, int, float, str, bool and None,
// the values json.loads gives for the same document printed by the tool.
#pragma once

#include <lumora/content.h>
#include <pybind11/pybind11.h>

#include <string_view>

namespace lumora::python {

pybind11::object ToPython(const Description& document);
// A narrow text of the library's configuration (UTF-8, or else code page 1252), as the tool
// prints it.
pybind11::str FromNarrow(std::string_view text);

}  // namespace lumora::python
