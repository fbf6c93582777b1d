// The SQLite side of the database objects: one prepared statement at a time, and the mapping
// of SQLite's failures onto the HRESULTs callers tell apart.
#pragma once

#include <lumora/platform/ado/error.h>

#include <sqlite3.h>

#include <string>
#include <string_view>

namespace lumora::ado {

// An Error for result code `rc` of `db`, with SQLite's message as its description.
Error EngineError(sqlite3* db, int rc, const char* source);

class Statement {
 public:
  // Prepares one statement (after translation); raises the engine's error.
  Statement(sqlite3* db, std::string_view sql, const char* source);
  ~Statement() { sqlite3_finalize(stmt_); }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  // True while a row is current; false once the statement has run to its end.
  bool Step();
  sqlite3_stmt* get() const { return stmt_; }

 private:
  sqlite3* db_;
  const char* source_;
  sqlite3_stmt* stmt_ = nullptr;
};

}  // namespace lumora::ado
