// The library's statements are written for the Access engine and reach SQLite as they stand,
// with one exception: a CREATE TABLE may name a table constraint between two column
// definitions ("a INTEGER, CONSTRAINT x PRIMARY KEY (a, b), b INTEGER"), which SQLite only
// takes after the last column. Such constraints are moved behind the columns, in their order;
// every other statement, and every piece of text, is passed on unchanged. Column types
// (DATETIME, MEMO, TEXT(128)) stay as written: reading turns them back into the right values.
#pragma once

#include <string>
#include <string_view>

namespace lumora::ado {

std::string TranslateStatement(std::string_view sql);

}  // namespace lumora::ado
