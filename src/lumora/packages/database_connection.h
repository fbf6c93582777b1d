// The library's one way into a package database: connect, run statements, open record sets
// on SELECTs and read their fields, list the user tables, close. No database error leaves an
// operation: it is recorded in lastError, errorText and errorCode and the operation answers
// false or null. The field readers are the exception: they raise the database objects' Error
// for a value that cannot be converted (a NULL integer, say), and the caller decides.
#pragma once

#include <lumora/packages/package_records.h>
#include <lumora/platform/ado/command.h>
#include <lumora/platform/ado/connection.h>
#include <lumora/platform/ado/error.h>
#include <lumora/platform/ado/recordset.h>
#include <lumora/platform/archive.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lumora {

// One record set handed out by OpenRecordset; the caller walks it (GetEOF, MoveNext) and
// gives it back with CloseRecordset. Holders never given back are closed by Close.
struct RecordsetHolder {
  std::unique_ptr<ado::Recordset> recordset;
};

class DatabaseConnection : public Object {
 public:
  // lastError values.
  static constexpr int32_t kSuccess = 0;
  static constexpr int32_t kNoMemory = 1;
  static constexpr int32_t kDatabaseError = 2;
  static constexpr int32_t kNotOpen = 4;
  static constexpr int32_t kNoRow = 6;

  DatabaseConnection() = default;
  ~DatabaseConnection() override { Close(); }
  DatabaseConnection(const DatabaseConnection&) = delete;
  DatabaseConnection& operator=(const DatabaseConnection&) = delete;

  const char* ClassName() const override { return "DatabaseConnection"; }
  // Record exchange is not used by this library; the slot keeps the class's layout.
  virtual bool ExchangeRecord(RecordsetHolder*, Object*, bool) { return false; }

  // Connects (read-only when readOnly is nonzero), lists the tables and gives the database
  // its identifier table with the version row when it has none.
  bool Open(const std::string& connectionString, const std::string& user,
            const std::string& password, uint8_t readOnly);
  // Closes every record set still handed out, then the connection. Always true.
  bool Close();
  // A statement that gives no rows (CREATE TABLE, INSERT).
  bool Execute(const WideText& sql);
  // A statement run once per row with bound values at its "?" placeholders (database_command);
  // null, with the error recorded, when it cannot be prepared. Commands go before Close.
  std::unique_ptr<ado::Command> Prepare(const std::string& sql);
  bool Execute(ado::Command& command, const std::vector<ado::Variant>& values);
  // Statements between the two reach the file together.
  bool BeginTransaction();
  bool CommitTransaction();
  // A SELECT with at least one row; null with lastError kNoRow when it gives none.
  RecordsetHolder* OpenRecordset(const WideText& sql);
  void CloseRecordset(RecordsetHolder* holder);
  bool ListTables();
  // Among the names of the last ListTables, ignoring case.
  bool HasTable(const WideText& name) const;

  // The current row's field as VT_I4, VT_UI1 or VT_BSTR, converted when it is another type.
  void ReadInteger(RecordsetHolder& holder, const char* name, int32_t& value) const;
  void ReadByte(RecordsetHolder& holder, const char* name, uint8_t& value) const;
  void ReadText(RecordsetHolder& holder, const char* name, WideText& value) const;
  // A date field as local time (daylight saving as the system decides). Any other value, or
  // a date outside the 32-bit range, leaves `value` as it was.
  void ReadDate(RecordsetHolder& holder, const char* name, CalendarTime& value) const;

  // Records a caught error: errorText "[source] [description] {system message}", errorCode,
  // and an internal-log entry with `code`.
  void ReportError(const ado::Error& error, int32_t code);

  // What the last caught error said of itself (the engine's reason, "database or disk is
  // full"), and whether it was a failure of the file (full, I/O, locked, not a database) rather
  // than of the statement (a broken statement, a duplicate key).
  const std::string& errorReason() const { return errorReason_; }
  bool FileFailed() const { return errorHresult_ == ado::kUnspecifiedError; }

  std::unique_ptr<ado::Connection> connection;
  uint8_t isOpen = 0;
  std::vector<std::unique_ptr<RecordsetHolder>> openRecordsets;
  int32_t lastError = kSuccess;
  std::string errorText;
  uint16_t errorCode = 0;
  std::vector<WideText> tableNames;

 private:
  // Runs `action` on the open connection, recording a database error as Execute does.
  template <typename Action>
  bool Run(Action&& action);
  bool Connect(const std::string& connectionString, const std::string& user,
               const std::string& password, uint8_t readOnly);
  void CreateIdentifierTable();

  std::string errorReason_;
  ado::HRESULT errorHresult_ = 0;
};

}  // namespace lumora
