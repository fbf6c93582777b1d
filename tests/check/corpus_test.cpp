// The broken-file corpus: each case of tests/corpus is a few files laid over the sample content
// (at their paths below its root) and files taken away from it, with the exact findings the
// checks it names must report and, for a file a loader reads, the reason that loader gives.
// The same files seed the fuzz targets.
#include <lumora/check/content_check.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <lumora/sample/sample_content.h>

#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

namespace fs = std::filesystem;

const fs::path kCorpus = fs::path(LUMORA_SOURCE_DIR) / "tests" / "corpus";

std::vector<std::string> Cases() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kCorpus)) {
    if (entry.is_directory()) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// The sample, written once.
const std::string& SampleTemplate() {
  static TempDir dir;
  static const bool written = [] {
    std::string error;
    return sample::WriteSampleContent(dir.path(), {1, false}, &error);
  }();
  EXPECT_TRUE(written);
  return dir.path();
}

// The loader's reason for a file of the case: a resource file of its folder's type, or an
// index file of its name's type.
std::string ReasonFor(const std::string& root, const std::string& file) {
  const fs::path path(file);
  const std::string ext = path.extension().string();
  const uint32_t type = static_cast<uint32_t>(
      std::stoul((ext == ".ari" ? path.stem() : path.parent_path().filename()).string().substr(1)));
  std::unique_ptr<Object> object;
  if (ext == ".ari") {
    object = NewTypeIndex(type);
  } else {
    object = NewResource(type);
  }
  const LoadResult loaded = ReadArchiveFile(root + file, *object);
  return loaded.ok() ? "loads" : loaded.failure().Details();
}

// A case laid over the sample in place, and taken away again: the sample's files it replaces or
// removes are set aside beside themselves, and the folders it adds are removed at the end. A
// check never writes, so the sample is whole again for the next case.
class LaidOver {
 public:
  LaidOver(const std::string& root, const fs::path& folder, const nlohmann::json& expected) {
    for (const auto& removed : expected.value("remove", nlohmann::json::array())) {
      SetAside(root + removed.get<std::string>());
    }
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (!entry.is_regular_file() || entry.path().filename() == "expected.json") continue;
      const fs::path target = root / fs::relative(entry.path(), folder);
      for (fs::path f = target.parent_path(); !fs::exists(f); f = f.parent_path()) {
        added_.push_back(f);
      }
      SetAside(target);
      fs::create_directories(target.parent_path());
      fs::copy_file(entry.path(), target);
      added_.push_back(target);
    }
  }
  ~LaidOver() {
    for (auto it = added_.rbegin(); it != added_.rend(); ++it) fs::remove_all(*it);
    for (const fs::path& path : aside_) fs::rename(Aside(path), path);
  }

 private:
  static fs::path Aside(const fs::path& path) { return path.string() + ".corpus-aside"; }
  void SetAside(const fs::path& path) {
    if (!fs::exists(fs::symlink_status(path))) return;
    fs::rename(path, Aside(path));
    aside_.push_back(path);
  }

  std::vector<fs::path> added_;
  std::vector<fs::path> aside_;
};

void CheckCase(const std::string& name) {
  SCOPED_TRACE(name);
  const fs::path folder = kCorpus / name;
  const auto expected = nlohmann::json::parse(std::ifstream(folder / "expected.json"));
  const std::string& root = SampleTemplate();
  const LaidOver laid(root, folder, expected);

  CheckOptions options;
  options.checks = expected["checks"].get<std::vector<std::string>>();
  options.disciplineFilter = expected.value("discipline", 1u);
  nlohmann::json found = nlohmann::json::array();
  for (const CheckReport& report : CheckContentRoot(root, options)) {
    for (const Finding& f : report.findings) {
      found.push_back({{"severity", f.severity == Severity::kError ? "error" : "warning"},
                       {"file", f.file},
                       {"message", f.message}});
    }
  }
  EXPECT_EQ(found, expected["findings"]) << found.dump(2);
  if (expected.contains("reason")) {
    EXPECT_EQ(ReasonFor(root, expected["reason"]["file"]), expected["reason"]["text"]);
  }
}

// One test for the whole corpus: the sample is written once and each case is laid over it.
TEST(Corpus, EveryCaseGivesExactlyItsFindings) {
  const std::vector<std::string> cases = Cases();
  EXPECT_GE(cases.size(), 30u);
  for (const std::string& name : cases) CheckCase(name);
}

}  // namespace
}  // namespace lumora::testing
