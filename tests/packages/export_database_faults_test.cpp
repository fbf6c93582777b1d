// The export database on a failing disk, faults injected into SQLite itself: every write, flush,
// truncation and lock of a whole export failing in turn with a full disk or an I/O error. An
// export that answers true has written every table and row; the reads of a discipline's
// database answer false on an I/O error, never less than the truth. A database another program
// keeps locked is waited for, then the export fails saying why.
#include <lumora/lumora.h>
#include <lumora/packages/package_records.h>
#include <lumora/platform/held_retry.h>
#include <lumora/platform/notify.h>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include <lumora/sample/sample_content.h>
#include "fixtures/sqlite_faults.h"
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;
using testing::SqliteFaults;

// Every table of the database with every row, as text, in an order of their own. Opening it
// does what the next reader does first: a transaction left unfinished is rolled back.
std::string Dump(const std::string& file) {
  sqlite3* db = nullptr;
  std::string text;
  if (sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
    auto rows = [&](const std::string& sql) {
      std::vector<std::string> all;
      sqlite3_exec(
          db, sql.c_str(),
          [](void* out, int n, char** values, char**) {
            std::string row;
            for (int i = 0; i < n; ++i) row += std::string(values[i] ? values[i] : "NULL") + "|";
            static_cast<std::vector<std::string>*>(out)->push_back(row);
            return 0;
          },
          &all, nullptr);
      return all;
    };
    for (const std::string& table :
         rows("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")) {
      const std::string name = table.substr(0, table.size() - 1);
      text += "table " + name + "\n";
      for (const std::string& row : rows("SELECT * FROM " + name + " ORDER BY 1, 2, 3")) {
        text += row + "\n";
      }
    }
  }
  sqlite3_close_v2(db);
  return text;
}

class ExportDatabaseFaults : public testing::LibraryTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(source(), {1, false}, &error)) << error;
  }

  std::string source() const { return root() + "source/"; }
  std::string destination() const { return root() + "out/"; }
  std::string database() const { return destination() + "D001/Content.mdb"; }

  void FreshDestination() const {
    fs::remove_all(destination());
    fs::create_directories(destination() + "D001");
    std::ofstream(database(), std::ios::binary);
  }

  // Runs `exportRun` once undisturbed, then once per step and error with that step failing:
  // each run answers false or leaves the whole database of the undisturbed run.
  void Sweep(const std::function<bool()>& exportRun) {
    SqliteFaults faults(SqliteFaults::kWrites);
    FreshDestination();
    faults.Arm(0, SqliteFaults::Error::kIo);
    ASSERT_TRUE(exportRun()) << report;
    const uint64_t steps = faults.StepsTaken();
    faults.Disarm();
    const std::string whole = Dump(database());
    ASSERT_NE(whole.find("table t_PackagesResources\n"), std::string::npos);
    ASSERT_GT(steps, 10u);
    int failed = 0;
    for (uint64_t step = 1; step <= steps; ++step) {
      for (auto error : {SqliteFaults::Error::kDiskFull, SqliteFaults::Error::kIo}) {
        FreshDestination();
        faults.Arm(step, error);
        const bool ok = exportRun();
        faults.Disarm();
        const std::string where = "step " + std::to_string(step);
        ASSERT_TRUE(faults.Fired()) << where;
        if (ok) {
          EXPECT_EQ(Dump(database()), whole) << where << " answered true with less";
        } else {
          ++failed;
          EXPECT_NE(report, "") << where;
        }
      }
    }
    EXPECT_GT(failed, 0);
  }

  std::string report;
};

TEST_F(ExportDatabaseFaults, PackageExportNeverAnswersTrueWithLessThanItsRows) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  Sweep([&] {
    report.clear();
    DWordArray ids;
    ids.Add(4);
    return lmExportPackage(1, ids, {}, destination().c_str(), nullptr, &report);
  });
}

TEST_F(ExportDatabaseFaults, CustomizedExportNeverAnswersTrueWithLessThanItsRows) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  PackageList packages;
  TranslationList translations;
  ASSERT_TRUE(lmGetPackages(1, &packages));
  ASSERT_TRUE(lmGetPackageTranslations(1, &translations));
  PackageResourceList rows;
  for (int32_t number = 1; number <= 3; ++number) {
    for (int32_t type : {1, 8, 40, 1003}) {
      auto row = std::make_unique<PackageResourceRecord>();
      row->idResource = type;
      row->idItem = 0x100000 | number;
      rows.Add(packages.KeyAt(0), std::move(row));
    }
  }
  DWordArray ids;
  ids.Add(packages.KeyAt(0));
  Sweep([&] {
    report.clear();
    const ByteArray qualities;
    return lmExportCustomizedPackage(&packages, &translations, &rows, &ids, 1, &qualities,
                                     destination().c_str(), nullptr, &report, 1);
  });
}

// A commit that fails is said with the database and the engine's reason.
TEST_F(ExportDatabaseFaults, AFailedCommitIsSaidWithTheDatabaseAndTheReason) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  SqliteFaults faults(SqliteFaults::kSync);
  DWordArray ids;
  ids.Add(4);
  FreshDestination();
  faults.Arm(0, SqliteFaults::Error::kDiskFull);
  ASSERT_TRUE(lmExportPackage(1, ids, {}, destination().c_str(), nullptr, &report)) << report;
  // The commit's flush of the database file is the export's last.
  const uint64_t last = faults.StepsTaken();
  FreshDestination();
  faults.Arm(last, SqliteFaults::Error::kDiskFull);
  EXPECT_FALSE(lmExportPackage(1, ids, {}, destination().c_str(), nullptr, &report));
  EXPECT_TRUE(faults.Fired());
  EXPECT_NE(
      report.find(database() + ": cannot commit the package tables: database or disk is full\n"),
      std::string::npos)
      << report;
}

TEST_F(ExportDatabaseFaults, ReadsOfADisciplineDatabaseAnswerFalseOnAnIoError) {
  SqliteFaults faults(SqliteFaults::kReads);
  auto read = [&](PackageList& packages, TranslationList& translations) {
    return lmOpen_Database(source().c_str(), 1) && lmGetPackages(1, &packages) &&
           lmGetPackageTranslations(1, &translations);
  };
  PackageList packages;
  TranslationList translations;
  faults.Arm(0, SqliteFaults::Error::kIo);
  ASSERT_TRUE(read(packages, translations));
  const uint64_t steps = faults.StepsTaken();
  lmClose();
  ASSERT_GT(packages.size(), 0u);
  for (uint64_t step = 1; step <= steps; ++step) {
    PackageList p;
    TranslationList t;
    faults.Arm(step, SqliteFaults::Error::kIo);
    const bool ok = read(p, t);
    faults.Disarm();
    lmClose();
    if (!ok) continue;
    EXPECT_EQ(p.size(), packages.size()) << "step " << step;
    EXPECT_EQ(t.size(), translations.size()) << "step " << step;
  }
}

TEST_F(ExportDatabaseFaults, ADatabaseLockedByAnotherProgramIsWaitedForThenNamed) {
  ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
  FreshDestination();
  const ShareFileSettings saved = ShareFileRetrySettings();
  ShareFileRetrySettings() = {2, 50, 5};
  std::string notes;
  const NotifyHandler previous =
      SetNotifyHandler([&](const std::string& text) { notes += text + "\n"; });
  // Another connection keeps the file locked for writing: SQLite's locks are the same between
  // two connections of one process as between two programs.
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open_v2(database().c_str(), &other, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
  DWordArray ids;
  ids.Add(4);
  const bool ok = lmExportPackage(1, ids, {}, destination().c_str(), nullptr, &report);
  sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
  sqlite3_close_v2(other);
  SetNotifyHandler(previous);
  ShareFileRetrySettings() = saved;
  EXPECT_FALSE(ok);
  EXPECT_NE(report.find(database() + ": cannot open the package database: database is locked\n"),
            std::string::npos)
      << report;
  const std::string told = "Another program is using the files of: " + database() + "\n";
  ASSERT_NE(notes.find(told), std::string::npos) << notes;
  EXPECT_NE(notes.find(told, notes.find(told) + 1), std::string::npos) << "told once per attempt";
}

}  // namespace
}  // namespace lumora
