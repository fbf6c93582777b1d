// What the database objects take from the library's text before the engine sees it: the file
// named in a connection string, and the one statement form that must be rearranged.
#include <lumora/platform/ado/connection_string.h>
#include <lumora/platform/ado/jet_sql.h>

#include <gtest/gtest.h>

namespace lumora::ado {
namespace {

TEST(AdoConnectionString, NamesTheFileOfTheAccessDriverWithKeysInAnyCase) {
  EXPECT_EQ(DatabaseFileOf("DRIVER={Microsoft Access Driver (*.mdb)};DBQ=/data/D001/Content.mdb"),
            "/data/D001/Content.mdb");
  EXPECT_EQ(DatabaseFileOf("driver={MICROSOFT ACCESS DRIVER (*.MDB)}; dbq = /a b/x.mdb ;UID=me"),
            "/a b/x.mdb");
  EXPECT_EQ(DatabaseFileOf("Dbq={/odd;name.mdb};Driver={Microsoft Access Driver (*.mdb)}"),
            "/odd;name.mdb");
  EXPECT_EQ(DatabaseFileOf("DBQ=/only.mdb"), "/only.mdb");
  EXPECT_EQ(DatabaseFileOf("DRIVER={SQL Server};DBQ=/x.mdb"), std::nullopt);
  EXPECT_EQ(DatabaseFileOf("DRIVER={Microsoft Access Driver (*.mdb)}"), std::nullopt);
  EXPECT_EQ(DatabaseFileOf("DRIVER={Microsoft Access Driver (*.mdb)};DBQ="), std::nullopt);
  EXPECT_EQ(DatabaseFileOf(""), std::nullopt);
}

TEST(AdoStatements, TableConstraintsBetweenColumnsMoveBehindThemAndNothingElseChanges) {
  EXPECT_EQ(TranslateStatement(
                "CREATE TABLE t_Translations (f_IdString INTEGER, f_IdLanguage INTEGER, "
                "CONSTRAINT x PRIMARY KEY (f_IdString, f_IdLanguage), f_IdDataType INTEGER, "
                "f_String MEMO)"),
            "CREATE TABLE t_Translations (f_IdString INTEGER, f_IdLanguage INTEGER, "
            "f_IdDataType INTEGER, f_String MEMO, CONSTRAINT x PRIMARY KEY (f_IdString, "
            "f_IdLanguage))");
  // Already in place, a column constraint, and statements that are not table definitions.
  for (const char* unchanged :
       {"CREATE TABLE t_PackagesResources (f_IdPackage  INTEGER ,f_IdResource INTEGER ,f_IdItem  "
        "   INTEGER , CONSTRAINT x PRIMARY KEY (f_IdPackage, f_IdResource, f_IdItem))",
        "CREATE TABLE t_Identifiers (f_IdTable INTEGER CONSTRAINT x PRIMARY KEY, f_NextId "
        "INTEGER, f_Comment TEXT(128))",
        "INSERT INTO t_Translations VALUES (1, 2, 3, 'a, CONSTRAINT b')",
        "SELECT * FROM t_Packages"}) {
    EXPECT_EQ(TranslateStatement(unchanged), unchanged);
  }
  // Commas inside quotes or brackets do not split items.
  EXPECT_EQ(TranslateStatement("CREATE TABLE t (a TEXT DEFAULT 'x,y', UNIQUE (a), [b,c] INTEGER)"),
            "CREATE TABLE t (a TEXT DEFAULT 'x,y', [b,c] INTEGER, UNIQUE (a))");
}

}  // namespace
}  // namespace lumora::ado
