#include <lumora/packages/database_connection.h>
#include <lumora/support/internal_log.h>
#include <lumora/support/wide_format.h>

#include <algorithm>
#include <new>

namespace lumora {
namespace {

// Internal-log codes of the operations, one per operation and failure.
constexpr int32_t kLogOpenFailed = 795;     // setting the mode or opening
constexpr int32_t kLogConnectFailed = 796;  // making the connection object, or anything else
constexpr int32_t kLogNoHolder = 801;       // no memory for a record-set holder
constexpr int32_t kLogSelectFailed = 802;
constexpr int32_t kLogSelectClosed = 804;
constexpr int32_t kLogForeignHolder = 814;  // a holder this connection did not hand out
constexpr int32_t kLogListFailed = 843;
constexpr int32_t kLogListClosed = 844;
constexpr int32_t kLogExecuteFailed = 885;
constexpr int32_t kLogExecuteClosed = 887;
constexpr int32_t kLogCloseFailed = 988;

constexpr char16_t kIdentifierTable[] = u"t_Identifiers";
// Row 0 of the identifier table carries the schema version of the package tables.
constexpr int32_t kVersionRow = 0;
constexpr int32_t kSchemaVersion = 3;

WideText IdentifierTableStatement() {
  WideText sql;
  sql.Assign(
      FormatWide(u"CREATE TABLE %s (%s INTEGER CONSTRAINT x PRIMARY KEY, %s INTEGER, %s TEXT(128))",
                 kIdentifierTable, u"f_IdTable", u"f_NextId", u"f_Comment"));
  return sql;
}

WideText VersionRowStatement() {
  WideText sql;
  sql.Assign(FormatWide(u"INSERT INTO %s VALUES (%d,%d,'%s')", kIdentifierTable, kVersionRow,
                        kSchemaVersion, u"Version Number"));
  return sql;
}

}  // namespace

bool DatabaseConnection::Open(const std::string& connectionString, const std::string& user,
                              const std::string& password, uint8_t readOnly) {
  lastError = kSuccess;
  Close();
  try {
    if (!Connect(connectionString, user, password, readOnly)) return false;
    isOpen = 1;
    if (!ListTables()) {
      Close();
      return false;
    }
    if (!HasTable(WideText(kIdentifierTable))) CreateIdentifierTable();
    return true;
  } catch (...) {
    lastError = kDatabaseError;
    ReportCodeText(kLogConnectFailed, "Erreur OpenDataBase()!");
    return false;
  }
}

// Making the connection object and opening it fail with codes of their own.
bool DatabaseConnection::Connect(const std::string& connectionString, const std::string& user,
                                 const std::string& password, uint8_t readOnly) {
  connection.reset();
  try {
    connection = std::make_unique<ado::Connection>();
  } catch (const ado::Error& error) {
    ReportError(error, kLogConnectFailed);
    return false;
  }
  try {
    connection->SetMode(ado::kModeShareDenyNone);
    connection->SetMode(readOnly != 0 ? ado::kModeRead : ado::kModeReadWrite);
    connection->Open(connectionString, user, password, ado::kOptionUnspecified);
  } catch (const ado::Error& error) {
    lastError = kDatabaseError;
    ReportError(error, kLogOpenFailed);
    return false;
  }
  return true;
}

// Neither result is checked: a database that cannot take the table still serves reads.
void DatabaseConnection::CreateIdentifierTable() {
  Execute(IdentifierTableStatement());
  Execute(VersionRowStatement());
}

bool DatabaseConnection::Close() {
  if (isOpen == 0 || connection == nullptr) return true;
  try {
    if (connection->State() == ado::kStateOpen) {
      for (auto& holder : openRecordsets) {
        holder->recordset->Close();
        holder.reset();
      }
      openRecordsets.clear();
      connection->Close();
    }
  } catch (const ado::Error& error) {
    ReportError(error, kLogCloseFailed);
  }
  connection.reset();
  isOpen = 0;
  return true;
}

template <typename Action>
bool DatabaseConnection::Run(Action&& action) {
  if (isOpen == 0) {
    ReportCode(kLogExecuteClosed);
    lastError = kNotOpen;
    return false;
  }
  try {
    action(*connection);
  } catch (const ado::Error& error) {
    lastError = kDatabaseError;
    ReportError(error, kLogExecuteFailed);
    return false;
  }
  return true;
}

bool DatabaseConnection::Execute(const WideText& sql) {
  return Run([&](ado::Connection& c) { c.Execute(sql.view(), ado::kExecuteNoRecords); });
}

std::unique_ptr<ado::Command> DatabaseConnection::Prepare(const std::string& sql) {
  std::unique_ptr<ado::Command> command;
  Run([&](ado::Connection& c) { command = std::make_unique<ado::Command>(c, sql); });
  return command;
}

bool DatabaseConnection::Execute(ado::Command& command, const std::vector<ado::Variant>& values) {
  return Run([&](ado::Connection&) { command.Execute(values); });
}

bool DatabaseConnection::BeginTransaction() {
  return Run([](ado::Connection& c) { c.BeginTrans(); });
}

bool DatabaseConnection::CommitTransaction() {
  return Run([](ado::Connection& c) { c.CommitTrans(); });
}

RecordsetHolder* DatabaseConnection::OpenRecordset(const WideText& sql) {
  lastError = kSuccess;
  if (isOpen == 0) {
    ReportCode(kLogSelectClosed);
    lastError = kNotOpen;
    return nullptr;
  }
  std::unique_ptr<RecordsetHolder> owned(new (std::nothrow) RecordsetHolder);
  if (owned == nullptr) {
    ReportCode(kLogNoHolder);
    lastError = kNoMemory;
    return nullptr;
  }
  RecordsetHolder* holder = owned.get();
  try {
    holder->recordset = std::make_unique<ado::Recordset>();
    openRecordsets.push_back(std::move(owned));
    holder->recordset->Open(sql.view(), *connection);
    if (holder->recordset->GetBOF() && holder->recordset->GetEOF()) {
      lastError = kNoRow;
      CloseRecordset(holder);
      return nullptr;
    }
    return holder;
  } catch (const ado::Error& error) {
    lastError = kDatabaseError;
    ReportError(error, kLogSelectFailed);
  }
  // A holder whose record set did not open is never handed out, so nobody could give it
  // back: it goes now rather than waiting for Close.
  std::erase_if(openRecordsets, [holder](const auto& h) { return h.get() == holder; });
  return nullptr;
}

void DatabaseConnection::CloseRecordset(RecordsetHolder* holder) {
  if (isOpen == 0 || holder == nullptr) return;
  const auto it = std::find_if(openRecordsets.begin(), openRecordsets.end(),
                               [holder](const auto& h) { return h.get() == holder; });
  if (it == openRecordsets.end()) {
    ReportCode(kLogForeignHolder);
    lastError = kNoRow;
    return;
  }
  if (holder->recordset->State() == ado::kStateOpen) holder->recordset->Close();
  openRecordsets.erase(it);
}

bool DatabaseConnection::ListTables() {
  lastError = kSuccess;
  if (isOpen == 0) {
    ReportCode(kLogListClosed);
    lastError = kNotOpen;
    return false;
  }
  tableNames.clear();
  try {
    auto tables = connection->OpenSchemaTables();
    for (; !tables->GetEOF(); tables->MoveNext()) {
      const WideText type(tables->Field("TABLE_TYPE").ToBstr());
      if (!type.EqualsIgnoreCase(WideText(u"TABLE"))) continue;
      tableNames.emplace_back(tables->Field("TABLE_NAME").ToBstr());
    }
  } catch (const ado::Error& error) {
    lastError = kDatabaseError;
    ReportError(error, kLogListFailed);
    return false;
  }
  return true;
}

bool DatabaseConnection::HasTable(const WideText& name) const {
  return FindIgnoreCase(tableNames, name);
}

}  // namespace lumora
