// Package databases for tests, written through the library's own connection.
#pragma once

#include <initializer_list>
#include <string>

namespace lumora::testing {

// Creates data_folder + "Content.mdb" afresh and runs `statements` on it in order; throws
// when one fails. `with_tables` first creates the three package tables.
void WritePackageDatabase(const std::string& data_folder,
                          std::initializer_list<const char16_t*> statements,
                          bool with_tables = true);

}  // namespace lumora::testing
