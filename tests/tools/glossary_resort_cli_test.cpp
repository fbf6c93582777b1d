// `lumora glossary ... resort` over a content root whose one discipline holds the small test
// glossary, saved with an order and letters that the rebuild must replace.
#include <lumora/lexicon/glossary.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "fixtures/fault_sweep.h"
#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "lexicon/glossary_fixture.h"

namespace lumora::testing {
namespace {

using nlohmann::json;

class GlossaryResortCli : public ::testing::Test {
 protected:
  void SetUp() override {
    CGloV6 glossary;
    FillSmallGlossary(glossary);
    glossary.setFolder(folder());
    ASSERT_TRUE(CreateFolderPath(glossary.folder));
    ASSERT_TRUE(glossary.save(false, {}));
    dir_.Write("Content.ini", "[001]\nDiscipline=7\nParam=17\nLocal=" + dir_.path() + "d7\n");
  }

  std::string folder() const { return dir_.path() + "d7/C0000/r0001001/"; }

  CliResult Resort(const std::string& args) {
    return RunCli("glossary " + dir_.path() + " -d 7 resort " + args);
  }

  CGloV6 Saved() const {
    CGloV6 saved;
    EXPECT_TRUE(saved.load(folder()));
    return saved;
  }

  TempDir dir_;
};

std::vector<std::pair<uint16_t, uint16_t>> Order(const CGloV6& g) {
  std::vector<std::pair<uint16_t, uint16_t>> order;
  for (const GloFNSortedRecord& r : g.sorted) order.emplace_back(r.position, r.fnId);
  return order;
}

TEST_F(GlossaryResortCli, ShowsTheRebuiltLettersAndSavesOnlyWhenAsked) {
  const CGloV6 before = Saved();
  const CliResult shown = Resort("--json");
  ASSERT_EQ(shown.exit_code, 0);
  const json out = json::parse(shown.out);
  EXPECT_EQ(out["words"], 6);
  EXPECT_EQ(out["written"], false);
  EXPECT_EQ(out["letters"], json::parse(R"([
      {"letterId": 1, "letter": "A", "first": 1, "last": 2},
      {"letterId": 2, "letter": "E", "first": 3, "last": 4},
      {"letterId": 3, "letter": "L", "first": 5, "last": 6}])"));
  EXPECT_EQ(Order(Saved()), Order(before));

  ASSERT_EQ(Resort("--write").exit_code, 0);
  const CGloV6 after = Saved();  // loads only when every checksum agrees
  EXPECT_EQ(Order(after), (std::vector<std::pair<uint16_t, uint16_t>>{
                              {1, 11}, {2, 10}, {3, 20}, {4, 21}, {5, 31}, {6, 30}}));
  ASSERT_EQ(after.letters.size(), 3u);
  EXPECT_EQ(after.letters.Find(2)->attrA, 3);
  EXPECT_EQ(after.letters.Find(2)->attrB, 4);
  // "entre" is not a headword: it keeps the letter it had.
  EXPECT_EQ(after.fns.Find(22)->letterId, before.fns.Find(22)->letterId);
  EXPECT_EQ(after.fns.Find(31)->letterId, 3);
}

TEST_F(GlossaryResortCli, UnknownDisciplineFails) {
  EXPECT_EQ(RunCli("glossary " + dir_.path() + " -d 8 resort").exit_code, 1);
}

// One read-only table stops the save before anything is written: exit code 1, every table and
// checksum as it was, and at once (no waiting meant for files another program holds).
TEST_F(GlossaryResortCli, AReadOnlyTableFailsTheSaveAndChangesNothing) {
  const FolderFiles before = SnapshotFolder(folder());
  ASSERT_EQ(::chmod((folder() + "t_Glo_FNLetter.set").c_str(), 0444), 0);
  EXPECT_EQ(Resort("--write").exit_code, 1);
  EXPECT_EQ(SnapshotFolder(folder()), before);
}

// The tool killed at disk step after disk step of its save: the next command that reads the
// glossary finds the old tables or the rebuilt ones, every checksum good, nothing left over.
TEST_F(GlossaryResortCli, KilledAtAnyStepOfTheSaveLeavesOldOrNewTables) {
  const FolderFiles old_files = SnapshotFolder(folder());
  ASSERT_EQ(Resort("--write").exit_code, 0);
  const FolderFiles new_files = SnapshotFolder(folder());
  ASSERT_NE(new_files, old_files);
  int killed = 0;
  for (int step = 1; step < 100; step += 2) {
    RestoreFolder(folder(), old_files);
    ::setenv("LUMORA_KILL_AT_STEP", std::to_string(step).c_str(), 1);
    const CliResult run = Resort("--write");
    ::unsetenv("LUMORA_KILL_AT_STEP");
    if (run.exit_code == 0) break;
    ++killed;
    EXPECT_EQ(RunCli("glossary " + dir_.path() + " -d 7 letters --json").exit_code, 0);
    const FolderFiles now = SnapshotFolder(folder());
    EXPECT_TRUE(now == old_files || now == new_files) << "killed at step " << step;
    EXPECT_EQ(ChecksumMismatches(folder()), "") << "killed at step " << step;
  }
  EXPECT_GT(killed, 10);
}

}  // namespace
}  // namespace lumora::testing
