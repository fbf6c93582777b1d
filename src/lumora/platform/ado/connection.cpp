#include <lumora/platform/ado/busy_wait.h>
#include <lumora/platform/ado/connection.h>
#include <lumora/platform/ado/connection_string.h>
#include <lumora/platform/ado/engine.h>
#include <lumora/platform/ado/recordset.h>
#include <lumora/platform/com_apartment.h>
#include <lumora/platform/utf8.h>

#include <sqlite3.h>

namespace lumora::ado {
namespace {

constexpr const char* kConnectionSource = "ADODB.Connection";

// The engine reads nothing until the first statement; this one makes a file that is not a
// database (or is locked away) fail at once.
constexpr std::string_view kProbe = "SELECT count(*) FROM sqlite_master";

constexpr std::u16string_view kTablesQuery =
    u"SELECT name AS TABLE_NAME, CASE WHEN name LIKE 'sqlite\\_%' ESCAPE '\\' "
    u"THEN 'SYSTEM TABLE' WHEN type = 'view' THEN 'VIEW' ELSE 'TABLE' END AS TABLE_TYPE "
    u"FROM sqlite_master WHERE type IN ('table', 'view') ORDER BY name";

}  // namespace

Connection::Connection() {
  if (ComInitializations() == 0) {
    throw Error(kNotInitialized, kConnectionSource, "no COM apartment on this thread");
  }
}

Connection::~Connection() { sqlite3_close_v2(db_); }

void Connection::SetMode(int32_t mode) {
  if (db_ != nullptr) throw Error(kObjectOpen, kConnectionSource, "the connection is open");
  mode_ = mode;
}

void Connection::Open(std::string_view connection_string, std::string_view, std::string_view,
                      int32_t) {
  if (db_ != nullptr) throw Error(kObjectOpen, kConnectionSource, "the connection is open");
  const auto file = DatabaseFileOf(connection_string);
  if (!file) {
    throw Error(kUnspecifiedError, kConnectionSource, "no database file in the connection string");
  }
  const bool read_only = (mode_ & kModeReadWrite) == kModeRead;
  sqlite3* db = nullptr;
  const int rc = sqlite3_open_v2(file->c_str(), &db,
                                 read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE, nullptr);
  if (rc != SQLITE_OK) {
    Error error = EngineError(db, rc, kConnectionSource);
    sqlite3_close_v2(db);
    throw error;
  }
  file_ = *file;
  WaitWhileLockedElsewhere(db, file_);
  try {
    Statement(db, kProbe, kConnectionSource).Step();
  } catch (...) {
    sqlite3_close_v2(db);
    throw;
  }
  db_ = db;
}

void Connection::Close() {
  if (db_ == nullptr) throw Error(kObjectClosed, kConnectionSource, "the connection is closed");
  sqlite3_close_v2(db_);
  db_ = nullptr;
}

void Connection::Execute(std::u16string_view sql, int32_t options) {
  if ((options & kExecuteNoRecords) == 0) {
    throw Error(kUnspecifiedError, kConnectionSource,
                "only statements without records can be executed");
  }
  Statement statement(handle(), Utf16ToUtf8(sql), kConnectionSource);
  while (statement.Step()) {
  }
}

void Connection::BeginTrans() { Statement(handle(), "BEGIN", kConnectionSource).Step(); }

void Connection::CommitTrans() { Statement(handle(), "COMMIT", kConnectionSource).Step(); }

std::unique_ptr<Recordset> Connection::OpenSchemaTables() {
  auto tables = std::make_unique<Recordset>();
  tables->Open(kTablesQuery, *this);
  return tables;
}

sqlite3* Connection::handle() const {
  if (db_ == nullptr) throw Error(kObjectClosed, kConnectionSource, "the connection is closed");
  return db_;
}

}  // namespace lumora::ado
