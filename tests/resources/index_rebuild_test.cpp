// Rebuilding a discipline's index files in place: all of them are replaced in one commit, so a
// failure or a crash at any disk step leaves every old index file as it was.
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>
#include <lumora/platform/notify.h>
#include <lumora/resources/index_rebuild.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include <lumora/sample/sample_content.h>
#include "fixtures/fault_sweep.h"
#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

class IndexRebuild : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(root.path(), {1, false}, &error)) << error;
    ASSERT_TRUE(lmOpen(root.path().c_str(), 1));
    localRoot = FindDiscipline(1)->localRoot;
    dataFolder = FindDiscipline(1)->dataFolder;
    lmClose();
  }

  testing::TempDir root;
  std::string localRoot;
  std::string dataFolder;
};

// The old index files of types 1005 and 40 are emptied by hand; the rebuild brings both back
// in one go, and nothing else appears in the data folder.
TEST_F(IndexRebuild, ReplacesEveryIndexTogether) {
  const testing::FolderFiles sample = testing::SnapshotFolder(dataFolder);
  std::filesystem::resize_file(IndexFilePath(dataFolder, 1005), 0);
  std::filesystem::resize_file(IndexFilePath(dataFolder, 40), 0);
  std::vector<TypeRebuild> results;
  ASSERT_TRUE(RebuildIndexesInPlace(localRoot, dataFolder, {1005, 40}, results).ok());
  ASSERT_EQ(results.size(), 2u);
  EXPECT_TRUE(results[0].built && results[1].built);
  EXPECT_EQ(testing::SnapshotFolder(dataFolder), sample);
}

TEST_F(IndexRebuild, SurvivesAFailureOrACrashAtEveryStep) {
  const NotifyHandler previous = SetNotifyHandler([](const std::string&) {});
  std::filesystem::resize_file(IndexFilePath(dataFolder, 1005), 0);
  std::filesystem::remove(IndexFilePath(dataFolder, 40));
  std::vector<TypeRebuild> results;
  const auto counts = testing::SweepFaults(
      dataFolder,
      [&] {
        const bool saved = RebuildIndexesInPlace(localRoot, dataFolder, {1005, 40}, results).ok();
        return saved && results.size() == 2 && results[0].built && results[1].built;
      },
      [&] { ResourceIndex reopened(dataFolder); },
      // Rebuilding type 40 writes the scratch index of type 1005 a second time and does
      // without it when that fails: the first one is still there, with the same bytes.
      false);
  SetNotifyHandler(previous);
  EXPECT_GT(counts.steps, 0);
}

}  // namespace
}  // namespace lumora
