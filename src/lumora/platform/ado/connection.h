// A connection to one database file, opened from a connection string that names it with
// DBQ= (see connection_string.h). Opening never creates the file, and a file that is not a
// database fails at Open rather than at the first statement.
//
// Creating a connection needs an initialised COM apartment on the calling thread, as the
// objects it stands in for do; without one the constructor raises kNotInitialized.
#pragma once

#include <lumora/platform/ado/error.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

namespace lumora::ado {

class Recordset;

inline constexpr int32_t kModeRead = 1;
inline constexpr int32_t kModeReadWrite = 3;
inline constexpr int32_t kModeShareDenyNone = 16;

inline constexpr int32_t kStateClosed = 0;
inline constexpr int32_t kStateOpen = 1;

inline constexpr int32_t kOptionUnspecified = -1;
inline constexpr int32_t kExecuteNoRecords = 128;

class Connection {
 public:
  Connection();
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // Only while closed (kObjectOpen otherwise). A mode whose access bits say read-only opens
  // the file read-only; every other mode reads and writes.
  void SetMode(int32_t mode);

  // User and password are accepted and not checked: the files have no accounts.
  void Open(std::string_view connection_string, std::string_view user, std::string_view password,
            int32_t options);
  void Close();
  int32_t State() const { return db_ != nullptr ? kStateOpen : kStateClosed; }

  // Runs one statement that gives no rows; `options` must carry kExecuteNoRecords.
  void Execute(std::u16string_view sql, int32_t options);

  // Groups the statements that follow until CommitTrans: their changes reach the file together,
  // with one flush to disk instead of one per statement.
  void BeginTrans();
  void CommitTrans();

  // The tables rowset: TABLE_NAME and TABLE_TYPE ("TABLE", "VIEW" or "SYSTEM TABLE"), one row
  // per table or view, by name.
  std::unique_ptr<Recordset> OpenSchemaTables();

  // The open engine handle; raises kObjectClosed when closed.
  sqlite3* handle() const;

 private:
  int32_t mode_ = 0;
  sqlite3* db_ = nullptr;
  std::string file_;  // the database file, named when another program keeps it locked
};

}  // namespace lumora::ado
