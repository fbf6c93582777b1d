#include <gmock/gmock.h>

#include <filesystem>

#include "check/check_fixture.h"
#include "packages/package_db.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using PackagesCheck = CheckTest;

TEST_F(PackagesCheck, TheSampleCataloguesAreWhole) {
  const std::string database = root() + "D001/Content.mdb";
  const auto before = std::filesystem::last_write_time(database);
  const CheckReport report = Report("packages");
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_GT(report.checked, 20u);
  EXPECT_EQ(std::filesystem::last_write_time(database), before) << "opened read-only";
}

// A row whose resource has no file, one whose file the index does not list, a package without
// a title and a date that does not read; a discipline without a database is a warning.
TEST_F(PackagesCheck, RowsTitlesAndDatesThatDoNotHoldUp) {
  std::filesystem::copy_file(root() + "D001/C0001/r0000005/r0000001.ars",
                             root() + "D001/C0001/r0000005/r0000077.ars");
  testing::WritePackageDatabase(
      root() + "D001/", {u"INSERT INTO t_Packages VALUES (1, '2024/01/15 09:30:00', 1, 100)",
                         u"INSERT INTO t_Packages VALUES (2, 'next week', 1, 101)",
                         u"INSERT INTO t_Translations VALUES (100, 14, 1, 'Greetings')",
                         u"INSERT INTO t_PackagesResources VALUES (1, 5, 1048577)",
                         u"INSERT INTO t_PackagesResources VALUES (1, 5, 1048676)",
                         u"INSERT INTO t_PackagesResources VALUES (2, 5, 1048653)"});
  std::filesystem::remove(root() + "D002/Content.mdb");
  CheckOptions options;
  options.checks = {"packages"};
  const std::vector<CheckReport> reports = CheckContentRoot(root(), options);
  std::vector<std::string> lines;
  for (const Finding& f : reports.at(0).findings) lines.push_back(f.file + ": " + f.message);
  EXPECT_THAT(
      lines,
      ElementsAre("D001/Content.mdb: package 2 has no title: t_Translations has no text 101",
                  "D001/Content.mdb: package 2: f_DateLastGeneration does not read as a date: "
                  "the library answers 0 (1 January 1970)",
                  "D001/Content.mdb: package 1 lists resource 1048676 of type 5, which has no "
                  "file: the export reports it and goes on",
                  "D001/Content.mdb: package 2 lists resource 1048653 of type 5, which the "
                  "type's index does not list",
                  "D002/Content.mdb: does not exist: lmOpen_Database fails for this discipline"));
}

}  // namespace
}  // namespace lumora
