// Connection strings of the form DRIVER={Microsoft Access Driver (*.mdb)};DBQ=path: pairs of
// key=value separated by semicolons, keys in any letter case, a value in braces may hold
// semicolons. The driver is the only one there is here; the database file is DBQ's value.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumora::ado {

// The DBQ file of a string that names the Access driver (or no driver); nothing otherwise.
std::optional<std::string> DatabaseFileOf(std::string_view connection_string);

}  // namespace lumora::ado
