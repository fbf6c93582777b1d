// How a stored value becomes a field value: NULL stays NULL; integers are VT_I4, or VT_UI1 in
// a BYTE column (a number too large for VT_I4 comes back as its decimal text); text is
// VT_BSTR, or VT_DATE in a DATETIME or DATE column when it reads as a date; anything else is
// its text.
#pragma once

#include <lumora/platform/ado/variant.h>

#include <sqlite3.h>

namespace lumora::ado {

Variant ColumnValue(sqlite3_stmt* stmt, int column);

}  // namespace lumora::ado
