// What an export copies and writes besides its rows: a resource and the questions that copy it
// again as their linked media, and the diagnosis package file, replaced whole.
#include <lumora/lumora.h>
#include <lumora/packages/package_records.h>
#include <lumora/platform/held_retry.h>
#include <lumora/platform/notify.h>

#include <gtest/gtest.h>
#include <unistd.h>

#include <diagnosis/diagnosis.h>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>

#include <lumora/sample/sample_content.h>
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;

// The files below `folder`, by their path there.
std::set<std::string> FilesBelow(const std::string& folder) {
  std::set<std::string> files;
  if (!fs::is_directory(folder)) return files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) files.insert(entry.path().string().substr(folder.size()));
  }
  return files;
}

class ExportCopies : public testing::LibraryTest {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(root() + "source/", {1, false}, &error)) << error;
    ASSERT_TRUE(lmOpen((root() + "source/").c_str(), 1));
    saved_ = ShareFileRetrySettings();
    // A wait for a held folder would show here as a notification, not as a slow test.
    ShareFileRetrySettings() = {1, 200, 10};
    previous_ = SetNotifyHandler([this](const std::string& text) { notes_ += text + "\n"; });
  }
  void TearDown() override {
    SetNotifyHandler(previous_);
    ShareFileRetrySettings() = saved_;
    LibraryTest::TearDown();
  }

  // Exports the rows {type, item} of one package into `destination`, with every quality folder.
  bool Export(const std::string& destination,
              std::initializer_list<std::pair<int32_t, int32_t>> rows) {
    fs::create_directories(destination + "D001");
    std::ofstream(destination + "D001/Content.mdb", std::ios::binary);
    PackageList packages;
    TranslationList translations;
    PackageResourceList resources;
    DWordArray ids;
    for (const auto& [type, item] : rows) {
      auto row = std::make_unique<PackageResourceRecord>();
      row->idResource = type;
      row->idItem = item;
      resources.Add(1, std::move(row));
    }
    ByteArray qualities;
    for (uint8_t q : {1, 2, 3}) qualities.Add(q);
    report_.clear();
    return lmExportCustomizedPackage(&packages, &translations, &resources, &ids, 1, &qualities,
                                     destination.c_str(), nullptr, &report_, 0);
  }

  std::string report_;
  std::string notes_;

 private:
  ShareFileSettings saved_;
  NotifyHandler previous_;
};

TEST_F(ExportCopies, QuestionsExportedWithTheirVideoResourceFindEveryMediumInPlace) {
  const std::string videos = "D001/C0001/r0001003/";
  const std::string alone = root() + "alone/";
  ASSERT_TRUE(Export(alone, {{8, 0x100001}})) << report_;
  const std::set<std::string> linked = FilesBelow(alone + videos);
  ASSERT_TRUE(linked.contains("Q3/v0000001.mpg") || linked.contains("Q3/v0000001.avi"));
  ASSERT_TRUE(linked.contains("Q1/p0000001.swf") && linked.contains("Q2/p0000001.swf"));

  // The resource file of the video is written by the export's writer while the questions copy
  // it again with its media: neither may wait for the other.
  const std::string both = root() + "both/";
  EXPECT_TRUE(Export(both, {{1003, 0x100001}, {8, 0x100001}})) << report_;
  const std::set<std::string> found = FilesBelow(both + videos);
  for (const std::string& file : linked) EXPECT_TRUE(found.contains(file)) << file << " is missing";
  EXPECT_EQ(notes_, "");
}

TEST(DiagnosisPackageFile, IsReplacedWholeNotRewrittenInPlace) {
  testing::TempDir dir;
  // A second name of the old file: rewriting it in place would change what this one reads.
  const std::string old = dir.Write("Diagnosis.txt", "the old package file");
  ASSERT_EQ(::link(old.c_str(), (dir.path() + "kept.txt").c_str()), 0);
  std::string report;
  EXPECT_TRUE(
      CLessonsData::GeneratePackage(7, nullptr, nullptr, "/src/", {2, 10023}, dir.path(), &report));
  EXPECT_EQ(report, "");
  EXPECT_EQ(dir.Read("kept.txt"), "the old package file");
  EXPECT_EQ(dir.Read("Diagnosis.txt"),
            "LumoraDiagnosis 1\r\ndiscipline=7\r\nsource=/src/\r\nlessons=2\r\n2\r\n10023\r\n");
  EXPECT_FALSE(fs::exists(dir.path() + "Diagnosis.txt.new"));

  EXPECT_FALSE(CLessonsData::GeneratePackage(7, nullptr, nullptr, "/src/", {}, dir.path() + "none/",
                                             &report));
  EXPECT_EQ(report, "Can not write the diagnosis package: " + dir.path() + "none/Diagnosis.txt\n");
}

}  // namespace
}  // namespace lumora
