// The field readers of DatabaseConnection. They let the database objects' errors through:
// the caller knows whether a NULL or an unconvertible value is a failure.
#include <lumora/packages/database_connection.h>

#include <ctime>
#include <limits>

namespace lumora {

void DatabaseConnection::ReadInteger(RecordsetHolder& holder, const char* name,
                                     int32_t& value) const {
  value = holder.recordset->Field(name).ToI4();
}

void DatabaseConnection::ReadByte(RecordsetHolder& holder, const char* name, uint8_t& value) const {
  value = holder.recordset->Field(name).ToUI1();
}

void DatabaseConnection::ReadText(RecordsetHolder& holder, const char* name,
                                  WideText& value) const {
  value.Assign(holder.recordset->Field(name).ToBstr());
}

void DatabaseConnection::ReadDate(RecordsetHolder& holder, const char* name,
                                  CalendarTime& value) const {
  const ado::Variant& field = holder.recordset->Field(name);
  if (field.type() != ado::VarType::kDate) return;
  const ado::DateParts parts = ado::PartsFromOleDate(field.date());
  std::tm tm{};
  tm.tm_year = parts.year - 1900;
  tm.tm_mon = parts.month - 1;
  tm.tm_mday = parts.day;
  tm.tm_hour = parts.hour;
  tm.tm_min = parts.minute;
  tm.tm_sec = parts.second;
  tm.tm_isdst = -1;
  const std::time_t time = std::mktime(&tm);
  if (time == -1 || time < std::numeric_limits<CalendarTime>::min() ||
      time > std::numeric_limits<CalendarTime>::max()) {
    return;
  }
  value = static_cast<CalendarTime>(time);
}

}  // namespace lumora
