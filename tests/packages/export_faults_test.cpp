// The export on a failing disk: each disk step in turn failing or being the moment the process
// dies, a destination that cannot be written, and a full file system. Whatever happens the
// export answers, the source stays as it was, and every file the export leaves is whole.
#include <lumora/lumora.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/platform/fault_injection.h>
#include <lumora/support/folder_commit.h>

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <string>

#include <lumora/sample/sample_content.h>
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;

// Every regular file below `folder` by its path there. The database and the checksum lists
// (which hold the files' dates) differ from one export to the next whatever happens.
Files Snapshot(const std::string& folder) {
  Files files;
  std::error_code error;
  for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    if (!it->is_regular_file()) continue;
    const std::string name = it->path().filename().string();
    if (name == "Content.mdb" || name == "CRCFile.ini") continue;
    std::ifstream in(it->path(), std::ios::binary);
    files[it->path().string().substr(folder.size())] =
        std::string(std::istreambuf_iterator<char>(in), {});
  }
  return files;
}

// The files whose failed write the export keeps to itself, as it always has: the index files
// of the rebuild, the files of the publishing pass, and what resource classes copy as their
// media (below a quality folder of a resource type other than the glossary's and the grammar's,
// and the linked video resources of questions).
bool KeptSilent(const std::string& name) {
  static const std::regex silent(
      R"(.*\.(ari|arh|aro)|D001/C[0-9]{4}/r(?!000100[12]/)[0-9]{7}/Q[0-9]+/.*|)"
      R"(D001/C[0-9]{4}/r0001003/r[0-9]{7}\.ars)");
  return std::regex_match(name, silent);
}

// What the next reader of each folder does first: a save that failed after it was decided is
// finished from its journal.
void FinishInterruptedSaves(const std::string& folder) {
  std::error_code error;
  for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    if (it->path().filename() == kCommitJournalName) {
      const FolderReadScope reader(it->path().parent_path().string() + "/");
    }
  }
}

class ExportFaults : public testing::LibraryTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(source(), {1, false}, &error)) << error;
    ASSERT_TRUE(lmOpen_Database(source().c_str(), 1));
    sourceFiles_ = Snapshot(source());
  }
  void TearDown() override {
    fault::Disarm();
    EXPECT_EQ(Snapshot(source()), sourceFiles_) << "the export changed its source";
    LibraryTest::TearDown();
  }

  std::string source() const { return root() + "source/"; }

  // Exports package 4 (resources of several types with media, the lessons of the partial
  // glossary and grammar) into `destination`, made ready as the tool makes it.
  bool Export(const std::string& destination) {
    fs::create_directories(destination + "D001");
    std::ofstream(destination + "D001/Content.mdb", std::ios::binary);
    report.clear();
    DWordArray ids;
    ids.Add(4);
    ByteArray qualities;
    for (uint8_t q : {1, 2, 3}) qualities.Add(q);
    return lmExportPackage(1, ids, qualities, destination.c_str(), nullptr, &report);
  }

  std::string report;

 private:
  Files sourceFiles_;
};

TEST_F(ExportFaults, EveryDiskStepFailingOrDyingLeavesOnlyWholeFiles) {
  fault::Arm({});
  ASSERT_TRUE(Export(root() + "whole/")) << report;
  const int steps = static_cast<int>(fault::StepsTaken());
  fault::Disarm();
  const Files whole = Snapshot(root() + "whole/");
  ASSERT_GT(steps, 100);

  // Hundreds of runs, each making a tree and removing it: in memory where the machine offers
  // it, since a disk that has just freed many files makes every new one slow to create.
  const bool in_memory = fs::is_directory("/dev/shm");
  const std::string runs = in_memory
                               ? "/dev/shm/lumora-export-faults-" + std::to_string(::getpid()) + "/"
                               : root() + "runs/";
  for (int step = 1; step <= steps; ++step) {
    for (const fault::Plan& plan : {fault::Plan{static_cast<uint64_t>(step), ENOSPC, false},
                                    fault::Plan{static_cast<uint64_t>(step), 0, true}}) {
      const std::string destination = runs + "run/";
      fs::remove_all(destination);
      fault::Arm(plan);
      const bool ok = Export(destination);
      fault::Disarm();
      FinishInterruptedSaves(destination);
      const std::string where = "step " + std::to_string(step) + (plan.crash ? " crash" : " error");
      // A failed file copy is reported but for those KeptSilent names; an index file lists the
      // resource files (and a glossary index the sound files) that are there, so it differs
      // when one is missing.
      for (const auto& [name, bytes] : Snapshot(destination)) {
        if (name.ends_with(kStagingSuffix)) {
          EXPECT_TRUE(plan.crash) << where << ": " << name << " left behind";
          continue;
        }
        EXPECT_FALSE(name.ends_with(kCommitJournalName)) << where;
        if (name.ends_with(".ari") || name.ends_with(".idx")) continue;
        const auto it = whole.find(name);
        ASSERT_NE(it, whole.end()) << where << ": " << name << " is not the export's";
        EXPECT_EQ(it->second, bytes) << where << ": " << name << " is not whole";
      }
      if (plan.crash) {
        EXPECT_FALSE(ok) << where;
      } else if (ok) {
        for (const auto& [name, bytes] : whole) {
          EXPECT_TRUE(KeptSilent(name) || fs::exists(destination + name))
              << where << ": answered true without " << name;
        }
      }
    }
  }
  fs::remove_all(runs);
}

TEST_F(ExportFaults, ADestinationThatCannotBeWrittenGivesReportLines) {
  const std::string destination = root() + "out/";
  fs::create_directories(destination + "D001");
  std::ofstream(destination + "D001/C0001", std::ios::binary) << "a file where a folder goes";
  std::ofstream(destination + "D001/C0000", std::ios::binary) << "another";
  EXPECT_FALSE(Export(destination));
  EXPECT_NE(report.find("Can not create directory : " + destination + "D001/C0001/r0001005/"),
            std::string::npos)
      << report;
  EXPECT_NE(report.find("Problem during creation of the partial glossary.\n"), std::string::npos);
  EXPECT_NE(report.find("Problem during creation of the partial grammar.\n"), std::string::npos);
}

// Needs the right to mount a file system: skipped where the test has none.
TEST_F(ExportFaults, AFullFileSystemGivesReportLines) {
  const std::string destination = root() + "small/";
  fs::create_directories(destination);
  if (::mount("lumora-test", destination.c_str(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "cannot mount a small file system here";
  }
  const bool ok = Export(destination);
  ::umount2(destination.c_str(), MNT_DETACH);
  EXPECT_FALSE(ok);
  EXPECT_NE(report, "");
}

}  // namespace
}  // namespace lumora
