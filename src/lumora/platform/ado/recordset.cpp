#include <lumora/platform/ado/column_value.h>
#include <lumora/platform/ado/connection.h>
#include <lumora/platform/ado/engine.h>
#include <lumora/platform/ado/recordset.h>
#include <lumora/platform/ascii_text.h>
#include <lumora/platform/utf8.h>

namespace lumora::ado {
namespace {

constexpr const char* kRecordsetSource = "ADODB.Recordset";

}  // namespace

void Recordset::Open(std::u16string_view sql, Connection& active) {
  if (open_) throw Error(kObjectOpen, kRecordsetSource, "the record set is open");
  Statement statement(active.handle(), Utf16ToUtf8(sql), kRecordsetSource);
  sqlite3_stmt* stmt = statement.get();
  const int count = sqlite3_column_count(stmt);
  std::vector<std::string> names;
  for (int i = 0; i < count; ++i) names.emplace_back(sqlite3_column_name(stmt, i));
  std::vector<std::vector<Variant>> rows;
  while (statement.Step()) {
    std::vector<Variant>& row = rows.emplace_back();
    row.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) row.push_back(ColumnValue(stmt, i));
  }
  names_ = std::move(names);
  rows_ = std::move(rows);
  position_ = 0;
  open_ = true;
}

void Recordset::Close() {
  RequireOpen();
  open_ = false;
  names_.clear();
  rows_.clear();
}

int32_t Recordset::State() const { return open_ ? kStateOpen : kStateClosed; }

bool Recordset::GetBOF() const {
  RequireOpen();
  return rows_.empty();
}

bool Recordset::GetEOF() const {
  RequireOpen();
  return position_ >= rows_.size();
}

void Recordset::MoveNext() {
  if (GetEOF()) throw Error(kNoCurrentRecord, kRecordsetSource, "no current record");
  ++position_;
}

const Variant& Recordset::Field(std::string_view name) const {
  if (GetEOF()) throw Error(kNoCurrentRecord, kRecordsetSource, "no current record");
  for (size_t i = 0; i < names_.size(); ++i) {
    if (EqualsIgnoringCase(names_[i], name)) return rows_[position_][i];
  }
  throw Error(kItemNotFound, kRecordsetSource, "no field named " + std::string(name));
}

void Recordset::RequireOpen() const {
  if (!open_) throw Error(kObjectClosed, kRecordsetSource, "the record set is closed");
}

}  // namespace lumora::ado
