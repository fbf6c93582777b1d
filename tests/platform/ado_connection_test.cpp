// The database objects over real files: what opening accepts, how statements fail, and what
// values reading gives back.
#include <lumora/platform/ado/connection.h>
#include <lumora/platform/ado/recordset.h>
#include <lumora/platform/com_apartment.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

#include "fixtures/no_apartment.h"
#include "fixtures/temp_dir.h"

namespace lumora::ado {
namespace {

using testing::TempDir;

HRESULT RaisedBy(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const Error& e) {
    return e.hr();
  }
  return 0;
}

class AdoConnection : public ::testing::Test {
 protected:
  void SetUp() override {
    ComInitialize();
    file = dir.Write("Content.mdb", "");
  }
  void TearDown() override { ComUninitialize(); }

  std::string ConnectionString() const {
    return "DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + file;
  }
  void OpenWith(Connection& c, int32_t mode) {
    c.SetMode(kModeShareDenyNone);
    c.SetMode(mode);
    c.Open(ConnectionString(), "", "", kOptionUnspecified);
  }
  void Run(Connection& c, std::u16string_view sql) { c.Execute(sql, kExecuteNoRecords); }
  std::unique_ptr<Recordset> Select(Connection& c, std::u16string_view sql) {
    auto rs = std::make_unique<Recordset>();
    rs->Open(sql, c);
    return rs;
  }

  TempDir dir;
  std::string file;
};

TEST_F(AdoConnection, NeedsAnApartmentAndAnExistingDatabaseFile) {
  {
    testing::NoApartment none;
    EXPECT_EQ(RaisedBy([] { Connection c; }), kNotInitialized);
  }

  Connection c;
  std::filesystem::remove(file);
  EXPECT_EQ(RaisedBy([&] { OpenWith(c, kModeReadWrite); }), kUnspecifiedError);
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_EQ(c.State(), kStateClosed);

  dir.Write("Content.mdb", "Standard Jet DB" + std::string(2048, 'x'));
  EXPECT_EQ(RaisedBy([&] { OpenWith(c, kModeReadWrite); }), kUnspecifiedError);
  EXPECT_EQ(RaisedBy([&] { c.Open("DRIVER={Other};DBQ=" + file, "", "", kOptionUnspecified); }),
            kUnspecifiedError);
  EXPECT_EQ(c.State(), kStateClosed);
  EXPECT_EQ(RaisedBy([&] { c.Close(); }), kObjectClosed);
  EXPECT_EQ(RaisedBy([&] { Run(c, u"CREATE TABLE t (a INTEGER)"); }), kObjectClosed);
}

TEST_F(AdoConnection, FailuresCarryTheHresultOfTheirKind) {
  Connection c;
  OpenWith(c, kModeReadWrite);
  EXPECT_EQ(RaisedBy([&] { c.SetMode(kModeRead); }), kObjectOpen);
  Run(c, u"CREATE TABLE t (a INTEGER CONSTRAINT x PRIMARY KEY, b TEXT(128))");
  Run(c, u"INSERT INTO t VALUES (1, 'one')");
  EXPECT_EQ(RaisedBy([&] { Run(c, u"INSERT INTO t VALUES (1, 'again')"); }), kIntegrityViolation);
  EXPECT_EQ(RaisedBy([&] { Run(c, u"INSERT INTO t VALUES (2, 'it's')"); }), kSyntaxError);
  EXPECT_EQ(RaisedBy([&] { Run(c, u"INSERT INTO missing VALUES (1)"); }), kNoTable);
  EXPECT_EQ(RaisedBy([&] { Select(c, u"SELECT * FROM missing"); }), kNoTable);
  EXPECT_EQ(RaisedBy([&] { Run(c, u"   "); }), kSyntaxError);
  EXPECT_EQ(RaisedBy([&] { c.Execute(u"SELECT * FROM t", 0); }), kUnspecifiedError);
}

TEST_F(AdoConnection, ReadOnlyModeReadsButRefusesChanges) {
  {
    Connection writer;
    OpenWith(writer, kModeReadWrite);
    Run(writer, u"CREATE TABLE t (a INTEGER)");
    Run(writer, u"INSERT INTO t VALUES (5)");
  }
  Connection reader;
  OpenWith(reader, kModeRead);
  EXPECT_EQ(Select(reader, u"SELECT a FROM t")->Field("a").ToI4(), 5);
  EXPECT_EQ(RaisedBy([&] { Run(reader, u"INSERT INTO t VALUES (6)"); }), kPermissionDenied);

  // A file the system will not let us write is read-only whatever the mode asks (a user
  // with rights to every file cannot see this).
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  if (::access(file.c_str(), W_OK) == 0) return;
  Connection writer;
  OpenWith(writer, kModeReadWrite);
  EXPECT_EQ(RaisedBy([&] { Run(writer, u"INSERT INTO t VALUES (6)"); }), kPermissionDenied);
}

TEST_F(AdoConnection, ColumnTypesDecideTheVariantsAReadGives) {
  Connection c;
  OpenWith(c, kModeReadWrite);
  Run(c, u"CREATE TABLE t (n INTEGER, d DATETIME, m MEMO, s TEXT(128), b BYTE)");
  Run(c, u"INSERT INTO t VALUES (7, '2024/01/15 09:30:00', 'Курс', '12', 200)");
  Run(c, u"INSERT INTO t VALUES (NULL, '2024-02-01 14:00:00', NULL, 'x', 300)");
  Run(c, u"INSERT INTO t VALUES (5000000000, 'soon', 'a', 'b', 1)");
  auto rs = Select(c, u"SELECT * FROM t");
  EXPECT_FALSE(rs->GetBOF());
  EXPECT_EQ(rs->Field("N").type(), VarType::kI4);
  EXPECT_EQ(rs->Field("d").type(), VarType::kDate);
  EXPECT_EQ(rs->Field("d").ToBstr(), u"2024/01/15 09:30:00");
  EXPECT_EQ(rs->Field("m").ToBstr(), u"Курс");
  EXPECT_EQ(rs->Field("s").type(), VarType::kBstr);
  EXPECT_EQ(rs->Field("b").type(), VarType::kUI1);
  rs->MoveNext();
  EXPECT_EQ(rs->Field("n").type(), VarType::kNull);
  EXPECT_EQ(rs->Field("d").ToBstr(), u"2024/02/01 14:00:00");
  EXPECT_EQ(rs->Field("b").type(), VarType::kI4);
  rs->MoveNext();
  EXPECT_EQ(rs->Field("n").type(), VarType::kBstr);
  EXPECT_EQ(RaisedBy([&] { rs->Field("n").ToI4(); }), kOverflow);
  EXPECT_EQ(rs->Field("d").type(), VarType::kBstr);
  EXPECT_EQ(RaisedBy([&] { rs->Field("missing"); }), kItemNotFound);
  rs->MoveNext();
  EXPECT_TRUE(rs->GetEOF());
  EXPECT_EQ(RaisedBy([&] { rs->Field("n"); }), kNoCurrentRecord);
  EXPECT_EQ(RaisedBy([&] { rs->MoveNext(); }), kNoCurrentRecord);
  rs->Close();
  EXPECT_EQ(RaisedBy([&] { rs->GetEOF(); }), kObjectClosed);
}

TEST_F(AdoConnection, TablesRowsetTellsUserTablesFromViewsAndSystemTables) {
  Connection c;
  OpenWith(c, kModeReadWrite);
  Run(c, u"CREATE TABLE t_B (a INTEGER PRIMARY KEY AUTOINCREMENT)");
  Run(c, u"CREATE TABLE t_A (a INTEGER)");
  Run(c, u"CREATE VIEW v AS SELECT * FROM t_A");
  auto tables = c.OpenSchemaTables();
  std::vector<std::u16string> rows;
  for (; !tables->GetEOF(); tables->MoveNext()) {
    rows.push_back(tables->Field("TABLE_NAME").ToBstr() + u":" +
                   tables->Field("TABLE_TYPE").ToBstr());
  }
  EXPECT_EQ(rows, (std::vector<std::u16string>{u"sqlite_sequence:SYSTEM TABLE", u"t_A:TABLE",
                                               u"t_B:TABLE", u"v:VIEW"}));
}

}  // namespace
}  // namespace lumora::ado
