#include <lumora/platform/ado/column_value.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/platform/utf8.h>

#include <limits>
#include <string>
#include <string_view>

namespace lumora::ado {
namespace {

std::string_view DeclaredType(sqlite3_stmt* stmt, int column) {
  const char* type = sqlite3_column_decltype(stmt, column);
  return type != nullptr ? std::string_view(type) : std::string_view();
}

bool IsDateColumn(std::string_view type) {
  return EqualsIgnoringCase(type, "DATETIME") || EqualsIgnoringCase(type, "DATE");
}

Variant Integer(sqlite3_int64 value, std::string_view type) {
  if (EqualsIgnoringCase(type, "BYTE") && value >= 0 && value <= 255) {
    return Variant::UI1(static_cast<uint8_t>(value));
  }
  if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max()) {
    return Variant::Bstr(Utf8ToUtf16(std::to_string(value)));
  }
  return Variant::I4(static_cast<int32_t>(value));
}

}  // namespace

Variant ColumnValue(sqlite3_stmt* stmt, int column) {
  const std::string_view type = DeclaredType(stmt, column);
  switch (sqlite3_column_type(stmt, column)) {
    case SQLITE_NULL:
      return Variant();
    case SQLITE_INTEGER:
      return Integer(sqlite3_column_int64(stmt, column), type);
    default:
      break;
  }
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(stmt, column));
  const std::string_view text(bytes != nullptr ? bytes : "",
                              static_cast<size_t>(sqlite3_column_bytes(stmt, column)));
  if (IsDateColumn(type)) {
    if (auto parts = ParseDateText(text)) return Variant::Date(OleDateFromParts(*parts));
  }
  return Variant::Bstr(Utf8ToUtf16(text));
}

}  // namespace lumora::ado
