#include <lumora/platform/ado/engine.h>
#include <lumora/platform/ado/jet_sql.h>

#include <string>

namespace lumora::ado {
namespace {

HRESULT HresultOf(int rc, std::string_view message) {
  switch (rc & 0xFF) {
    case SQLITE_CONSTRAINT:
      return kIntegrityViolation;
    case SQLITE_READONLY:
      return kPermissionDenied;
    case SQLITE_NOMEM:
      return kOutOfMemory;
    case SQLITE_ERROR:
      return message.starts_with("no such table") ? kNoTable : kSyntaxError;
    default:  // busy, locked, cannot open, not a database, I/O
      return kUnspecifiedError;
  }
}

}  // namespace

Error EngineError(sqlite3* db, int rc, const char* source) {
  const std::string message = db != nullptr ? sqlite3_errmsg(db) : sqlite3_errstr(rc);
  return Error(HresultOf(rc, message), source, message);
}

Statement::Statement(sqlite3* db, std::string_view sql, const char* source)
    : db_(db), source_(source) {
  const std::string text = TranslateStatement(sql);
  const int rc =
      sqlite3_prepare_v2(db, text.c_str(), static_cast<int>(text.size()), &stmt_, nullptr);
  if (rc != SQLITE_OK) throw EngineError(db, rc, source);
  // Blank text or a lone comment prepares to nothing: there is no statement to run.
  if (stmt_ == nullptr) throw Error(kSyntaxError, source, "empty statement");
}

bool Statement::Step() {
  const int rc = sqlite3_step(stmt_);
  if (rc == SQLITE_ROW) return true;
  if (rc == SQLITE_DONE) return false;
  throw EngineError(db_, rc, source_);
}

}  // namespace lumora::ado
