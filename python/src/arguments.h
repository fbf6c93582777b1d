// The checks of a script's arguments that the library's types cannot express: ranges of
// numbers and the names of path kinds. A bad value is a ValueError naming the argument.
#pragma once

#include <pybind11/pybind11.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora::python {

uint32_t Unsigned32(int64_t value, const char* name);
// None, or an int as Unsigned32 takes it (a TypeError for anything else).
std::optional<uint32_t> OptionalUnsigned32(const pybind11::object& value, const char* name);
uint8_t InRange(int64_t value, int64_t low, int64_t high, const char* name);
// "url" or "unc" (and "local" where `local` allows it).
uint32_t PathKindNamed(const std::string& name, bool local = false);
// A sequence of quality folders, each 1, 2 or 3.
std::vector<uint8_t> QualityFolders(const pybind11::iterable& folders);

}  // namespace lumora::python
