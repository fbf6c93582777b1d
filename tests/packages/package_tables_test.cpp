// The package listings through the registry: connecting the disciplines, reading the three
// tables into the caller's lists, and what bad rows and missing databases give.
#include <lumora/frame/package_queries.h>
#include <lumora/lumora.h>

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "frame/content_tree.h"
#include "packages/package_db.h"

namespace lumora {
namespace {

using testing::LibraryTest;
using testing::WritePackageDatabase;

class PackageTables : public LibraryTest {
 protected:
  std::string DataFolder(uint32_t id) const { return root() + "D00" + std::to_string(id) + "/"; }
  void OpenOne(std::initializer_list<const char16_t*> statements) {
    WriteIni("[001]\nDiscipline=1\n");
    WritePackageDatabase(DataFolder(1), statements);
    ASSERT_TRUE(lmOpen_Database(root().c_str(), 0));
  }
};

TEST_F(PackageTables, OpenStopsAtTheFirstDisciplineWithoutADatabase) {
  WriteIni("[001]\nDiscipline=1\n[002]\nDiscipline=2\n[003]\nDiscipline=3\n");
  WritePackageDatabase(DataFolder(1), {});
  WritePackageDatabase(DataFolder(3), {});
  EXPECT_FALSE(lmOpen_Database(root().c_str(), 0));
  // The library stays open; the discipline before the gap keeps its connection.
  ASSERT_EQ(testing::RegisteredIds(), (std::vector<uint32_t>{1, 2, 3}));
  EXPECT_NE(FindDiscipline(1)->database, nullptr);
  EXPECT_EQ(FindDiscipline(2)->database, nullptr);
  EXPECT_EQ(FindDiscipline(3)->database, nullptr);
  EXPECT_FALSE(std::filesystem::exists(DataFolder(2) + "Content.mdb"));
  PackageList packages;
  EXPECT_FALSE(lmGetPackages(3, &packages));
  EXPECT_FALSE(lmGetPackages(7, &packages));
  lmClose();

  // Opening only the disciplines that have one succeeds.
  EXPECT_TRUE(lmOpen_Database(root().c_str(), 3));
  EXPECT_NE(FindDiscipline(3)->database, nullptr);
}

TEST_F(PackageTables, PackagesAreAppendedInTheOrderReadEveryTimeTheyAreListed) {
  OpenOne({u"INSERT INTO t_Packages VALUES (9, '2002/03/14 09:05:00', 4, 100)",
           u"INSERT INTO t_Packages VALUES (2, '2024-01-15 10:00:00', 1, 101)"});
  PackageList packages;
  ASSERT_TRUE(lmGetPackages(1, &packages));
  ASSERT_TRUE(lmGetPackages(1, &packages));
  ASSERT_EQ(packages.size(), 4u);
  // The database gives the rows by package identifier; duplicates find the first read.
  EXPECT_FALSE(packages.sorted());
  EXPECT_EQ(packages.KeyAt(0), 2u);
  EXPECT_EQ(packages.KeyAt(1), 9u);
  EXPECT_EQ(packages.KeyAt(2), 2u);
  EXPECT_EQ(packages.Find(9), packages.ObjectAt(1));
  const PackageRecord& nine = *packages.ObjectAt(1);
  EXPECT_EQ(nine.version, 4);
  EXPECT_EQ(nine.idString, 100);
  std::tm tm{};
  tm.tm_year = 102;
  tm.tm_mon = 2;
  tm.tm_mday = 14;
  tm.tm_hour = 9;
  tm.tm_min = 5;
  tm.tm_isdst = -1;
  EXPECT_EQ(nine.dateLastGeneration, static_cast<CalendarTime>(std::mktime(&tm)));
}

TEST_F(PackageTables, TranslationsTakeTheCodePageOfTheirLanguage) {
  OpenOne({u"INSERT INTO t_Translations VALUES (100, 31, 1, 'Курс')",
           u"INSERT INTO t_Translations VALUES (100, 0, 1, 'Course')",
           u"INSERT INTO t_Translations VALUES (100, 70, 1, 'Beyond the table')",
           u"INSERT INTO t_Translations VALUES (101, 9, 2, 'It''s')"});
  TranslationList translations;
  ASSERT_TRUE(lmGetPackageTranslations(1, &translations));
  ASSERT_EQ(translations.size(), 4u);
  const struct {
    uint8_t language;
    uint16_t codePage;
    const char16_t* text;
  } expected[] = {{31, 1251, u"Курс"},
                  {0, 1252, u"Course"},
                  {70, 1252, u"Beyond the table"},
                  {9, 936, u"It's"}};
  for (uint32_t i = 0; i < 4; ++i) {
    EXPECT_EQ(translations[i].idLanguage, expected[i].language);
    EXPECT_EQ(translations[i].text.codePage, expected[i].codePage);
    EXPECT_EQ(translations[i].text.text.view(), expected[i].text);
  }
  EXPECT_EQ(translations[3].idString, 101);
  EXPECT_EQ(translations[3].idDataType, 2);
}

TEST_F(PackageTables, ResourcesOfTheAskedPackagesOnly) {
  OpenOne({u"INSERT INTO t_PackagesResources VALUES (1, 40, 1048577)",
           u"INSERT INTO t_PackagesResources VALUES (2, 1005, 2097157)",
           u"INSERT INTO t_PackagesResources VALUES (1, 1005, 1048578)"});
  DWordArray ids;
  PackageResourceList rows;
  EXPECT_TRUE(GetPackageResources(1, &ids, &rows));
  EXPECT_EQ(rows.size(), 0u);
  ids.Add(1);
  ids.Add(5);
  ASSERT_TRUE(GetPackageResources(1, &ids, &rows));
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows.KeyAt(1), 1u);
  EXPECT_EQ(rows.ObjectAt(0)->idResource, 40);
  EXPECT_EQ(rows.ObjectAt(1)->idItem, 1048578);
  EXPECT_FALSE(GetPackageResources(2, &ids, &rows));
}

TEST_F(PackageTables, EmptyMissingOrNullFilledTablesMakeTheListingFalse) {
  WriteIni("[001]\nDiscipline=1\n[002]\nDiscipline=2\n");
  WritePackageDatabase(DataFolder(1), {});
  // Discipline 2's tables have the wrong columns and NULLs where numbers are read.
  WritePackageDatabase(DataFolder(2),
                       {u"CREATE TABLE t_Packages (f_IdPackage INTEGER, f_Version INTEGER)",
                        u"INSERT INTO t_Packages VALUES (1, 1)",
                        u"CREATE TABLE t_Translations (f_IdString INTEGER, f_IdLanguage "
                        u"INTEGER, f_IdDataType INTEGER, f_String MEMO)",
                        u"INSERT INTO t_Translations VALUES (1, 300, 1, 'x')",
                        u"CREATE TABLE t_PackagesResources (f_IdPackage INTEGER, f_IdResource "
                        u"INTEGER, f_IdItem INTEGER)",
                        u"INSERT INTO t_PackagesResources VALUES (1, NULL, 3)"},
                       false);
  ASSERT_TRUE(lmOpen_Database(root().c_str(), 0));

  PackageList packages;
  packages.Add(42, std::make_unique<PackageRecord>());
  TranslationList translations;
  PackageResourceList rows;
  DWordArray ids;
  ids.Add(1);
  EXPECT_FALSE(lmGetPackages(1, &packages));
  EXPECT_FALSE(lmGetPackageTranslations(1, &translations));
  EXPECT_FALSE(GetPackageResources(1, &ids, &rows));
  EXPECT_EQ(packages.size(), 1u);
  EXPECT_EQ(translations.size(), 0u);

  EXPECT_FALSE(lmGetPackages(2, &packages));
  EXPECT_FALSE(lmGetPackageTranslations(2, &translations));
  EXPECT_FALSE(GetPackageResources(2, &ids, &rows));
  EXPECT_TRUE(FindDiscipline(2)->database->openRecordsets.empty());

  EXPECT_FALSE(lmGetPackages(1, nullptr));
  EXPECT_FALSE(GetPackageResources(1, nullptr, &rows));
}

}  // namespace
}  // namespace lumora
