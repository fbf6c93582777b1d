// DatabaseConnection over real files: the identifier table, the record-set bookkeeping and how
// a caught error is recorded.
#include <lumora/packages/database_connection.h>
#include <lumora/platform/com_apartment.h>
#include <lumora/platform/held_retry.h>
#include <lumora/support/internal_log.h>

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <string>

#include "fixtures/no_apartment.h"
#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::TempDir;

class DatabaseConnectionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ComInitialize();
    file = dir.Write("Content.mdb", "");
  }
  void TearDown() override { ComUninitialize(); }

  bool OpenDb(DatabaseConnection& db, uint8_t read_only = 0) const {
    return db.Open("DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + file, "", "", read_only);
  }
  static bool Run(DatabaseConnection& db, const char16_t* sql) { return db.Execute(WideText(sql)); }
  static RecordsetHolder* Select(DatabaseConnection& db, const char16_t* sql) {
    return db.OpenRecordset(WideText(sql));
  }

  TempDir dir;
  std::string file;
};

TEST_F(DatabaseConnectionTest, OpenGivesANewDatabaseItsIdentifierTableOnce) {
  for (int round = 0; round < 2; ++round) {
    DatabaseConnection db;
    ASSERT_TRUE(OpenDb(db)) << db.errorText;
    EXPECT_EQ(db.isOpen, 1);
    RecordsetHolder* rows = Select(db, u"SELECT * FROM t_Identifiers");
    ASSERT_NE(rows, nullptr);
    int32_t id = -1, next = -1;
    WideText comment;
    db.ReadInteger(*rows, "f_IdTable", id);
    db.ReadInteger(*rows, "f_NextId", next);
    db.ReadText(*rows, "f_Comment", comment);
    EXPECT_EQ(id, 0);
    EXPECT_EQ(next, 3);
    EXPECT_EQ(comment.view(), u"Version Number");
    rows->recordset->MoveNext();
    EXPECT_TRUE(rows->recordset->GetEOF()) << "round " << round;
    db.CloseRecordset(rows);
  }
}

TEST_F(DatabaseConnectionTest, TablesAreFoundIgnoringCase) {
  {
    DatabaseConnection db;
    ASSERT_TRUE(OpenDb(db));
    ASSERT_TRUE(Run(db, u"DROP TABLE t_Identifiers"));
    ASSERT_TRUE(Run(db, u"CREATE TABLE T_IDENTIFIERS (f_IdTable INTEGER)"));
    ASSERT_TRUE(Run(db, u"CREATE VIEW t_View AS SELECT * FROM T_IDENTIFIERS"));
  }
  DatabaseConnection db;
  ASSERT_TRUE(OpenDb(db));
  // The upper-case table counts as present: no second identifier table, no version row.
  EXPECT_EQ(db.tableNames.size(), 1u);
  EXPECT_TRUE(db.HasTable(WideText(u"t_identifiers")));
  EXPECT_FALSE(db.HasTable(WideText(u"t_View")));
  EXPECT_EQ(Select(db, u"SELECT * FROM t_Identifiers"), nullptr);
  EXPECT_EQ(db.lastError, DatabaseConnection::kNoRow);
}

TEST_F(DatabaseConnectionTest, EmptyResultIsNullAndLeavesNoHolder) {
  DatabaseConnection db;
  ASSERT_TRUE(OpenDb(db));
  ASSERT_TRUE(Run(db, u"CREATE TABLE t (a INTEGER)"));
  EXPECT_EQ(Select(db, u"SELECT * FROM t"), nullptr);
  EXPECT_EQ(db.lastError, DatabaseConnection::kNoRow);
  EXPECT_TRUE(db.openRecordsets.empty());
  // A failing SELECT leaves none either.
  EXPECT_EQ(Select(db, u"SELECT * FROM missing"), nullptr);
  EXPECT_EQ(db.lastError, DatabaseConnection::kDatabaseError);
  EXPECT_TRUE(db.openRecordsets.empty());
}

TEST_F(DatabaseConnectionTest, ClosedConnectionRefusesEveryOperationAndLogsIt) {
  const InternalLogSettings saved = LogSettings();
  LogSettings().clock = [] { return std::time_t{1016100000}; };
  LogSettings().defaultFolder = dir.path();
  InstallLog(dir.path() + "logs", 1);
  DatabaseConnection db;
  EXPECT_FALSE(Run(db, u"CREATE TABLE t (a INTEGER)"));
  EXPECT_EQ(db.lastError, DatabaseConnection::kNotOpen);
  db.lastError = 0;
  EXPECT_EQ(Select(db, u"SELECT 1"), nullptr);
  EXPECT_EQ(db.lastError, DatabaseConnection::kNotOpen);
  db.lastError = 0;
  EXPECT_FALSE(db.ListTables());
  EXPECT_EQ(db.lastError, DatabaseConnection::kNotOpen);
  EXPECT_TRUE(db.Close());
  RemoveLog();
  LogSettings() = saved;

  const std::filesystem::directory_iterator logs(dir.path() + "logs");
  ASSERT_NE(logs, std::filesystem::directory_iterator());
  EXPECT_EQ(dir.Read("logs/" + logs->path().filename().string()),
            "1016100000 0 200004 2=887 1=0 \r\n"
            "1016100000 0 200004 2=804 1=0 \r\n"
            "1016100000 0 200004 2=844 1=0 \r\n");
}

TEST_F(DatabaseConnectionTest, KeyViolationIsRecordedWithItsTexts) {
  DatabaseConnection db;
  ASSERT_TRUE(OpenDb(db));
  EXPECT_FALSE(Run(db, u"INSERT INTO t_Identifiers VALUES (0,4,'again')"));
  EXPECT_EQ(db.lastError, DatabaseConnection::kDatabaseError);
  // DB_E_INTEGRITYVIOLATION: its code number, and no platform text for it.
  EXPECT_EQ(db.errorCode, 0x0C2F);
  EXPECT_EQ(db.errorText,
            "[ADODB.Connection] [UNIQUE constraint failed: t_Identifiers.f_IdTable] "
            "{IDispatch error #3119}");
  // A successful statement leaves the last error as it was.
  EXPECT_TRUE(Run(db, u"CREATE TABLE t (a INTEGER)"));
  EXPECT_EQ(db.lastError, DatabaseConnection::kDatabaseError);
}

TEST_F(DatabaseConnectionTest, CloseFreesForgottenRecordSetsAndForeignHoldersAreRefused) {
  DatabaseConnection db;
  ASSERT_TRUE(OpenDb(db));
  RecordsetHolder* first = Select(db, u"SELECT * FROM t_Identifiers");
  RecordsetHolder* second = Select(db, u"SELECT f_NextId FROM t_Identifiers");
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(db.openRecordsets.size(), 2u);

  RecordsetHolder stranger;
  db.CloseRecordset(&stranger);
  EXPECT_EQ(db.lastError, DatabaseConnection::kNoRow);
  EXPECT_EQ(db.openRecordsets.size(), 2u);

  EXPECT_TRUE(db.Close());
  EXPECT_TRUE(db.openRecordsets.empty());
  EXPECT_EQ(db.connection, nullptr);
  EXPECT_EQ(db.isOpen, 0);
  // A reused object opens again from a clean state.
  ASSERT_TRUE(OpenDb(db));
  EXPECT_EQ(db.lastError, DatabaseConnection::kSuccess);
}

TEST_F(DatabaseConnectionTest, FilesThatCannotServeFailTheOpen) {
  DatabaseConnection db;
  dir.Write("Content.mdb", std::string(4096, '\x42'));
  EXPECT_FALSE(OpenDb(db));
  EXPECT_EQ(db.lastError, DatabaseConnection::kDatabaseError);
  EXPECT_EQ(db.isOpen, 0);
  EXPECT_EQ(db.errorText, "[ADODB.Connection] [file is not a database] {Unspecified error}");
  // E_FAIL lies outside the dispatch range: no code number.
  EXPECT_EQ(db.errorCode, 0);

  std::filesystem::remove(file);
  EXPECT_FALSE(OpenDb(db));
  EXPECT_FALSE(std::filesystem::exists(file));

  // A file another connection holds exclusively: waited for (briefly here), then refused.
  dir.Write("Content.mdb", "");
  {
    const ShareFileSettings saved = ShareFileRetrySettings();
    ShareFileRetrySettings() = {2, 50, 5};
    ado::Connection locker;
    locker.Open("DBQ=" + file, "", "", ado::kOptionUnspecified);
    locker.Execute(u"BEGIN EXCLUSIVE", ado::kExecuteNoRecords);
    locker.Execute(u"CREATE TABLE t (a INTEGER)", ado::kExecuteNoRecords);
    EXPECT_FALSE(OpenDb(db));
    EXPECT_EQ(db.lastError, DatabaseConnection::kDatabaseError);
    EXPECT_EQ(db.errorText, "[ADODB.Connection] [database is locked] {Unspecified error}");
    ShareFileRetrySettings() = saved;
  }

  // Without an apartment the connection object cannot be made: reported, lastError untouched.
  dir.Write("Content.mdb", "");
  db.lastError = 0;
  {
    testing::NoApartment none;
    EXPECT_FALSE(OpenDb(db));
  }
  EXPECT_EQ(db.lastError, DatabaseConnection::kSuccess);
  EXPECT_EQ(db.errorText,
            "[ADODB.Connection] [no COM apartment on this thread] "
            "{CoInitialize has not been called.}");
}

TEST_F(DatabaseConnectionTest, ReadOnlyDatabaseWithoutIdentifierTableStillOpens) {
  DatabaseConnection db;
  ASSERT_TRUE(OpenDb(db, 1));
  EXPECT_FALSE(db.HasTable(WideText(u"t_Identifiers")));
  EXPECT_EQ(db.lastError, DatabaseConnection::kDatabaseError);
  EXPECT_FALSE(Run(db, u"CREATE TABLE t (a INTEGER)"));
}

TEST_F(DatabaseConnectionTest, FieldReadersConvertAndLetUnconvertibleValuesThrough) {
  DatabaseConnection db;
  ASSERT_TRUE(OpenDb(db));
  ASSERT_TRUE(Run(db, u"CREATE TABLE t (d DATETIME, n INTEGER, s MEMO)"));
  ASSERT_TRUE(Run(db, u"INSERT INTO t VALUES ('2002/03/14 09:05:00', NULL, '31')"));
  RecordsetHolder* row = Select(db, u"SELECT * FROM t");
  ASSERT_NE(row, nullptr);
  CalendarTime date = 0;
  db.ReadDate(*row, "d", date);
  std::tm tm{};
  tm.tm_year = 102;
  tm.tm_mon = 2;
  tm.tm_mday = 14;
  tm.tm_hour = 9;
  tm.tm_min = 5;
  tm.tm_isdst = -1;
  EXPECT_EQ(date, static_cast<CalendarTime>(std::mktime(&tm)));
  // A value that is not a date leaves the time alone.
  CalendarTime untouched = 77;
  db.ReadDate(*row, "s", untouched);
  EXPECT_EQ(untouched, 77);
  uint8_t language = 0;
  db.ReadByte(*row, "s", language);
  EXPECT_EQ(language, 31);
  int32_t number = 0;
  EXPECT_THROW(db.ReadInteger(*row, "n", number), ado::Error);
  db.CloseRecordset(row);
}

}  // namespace
}  // namespace lumora
