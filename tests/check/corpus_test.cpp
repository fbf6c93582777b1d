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

// The sample is written once; each case works on a copy of it.
const std::string& SampleTemplate() {
  static TempDir dir;
  static const bool written = [] {
    std::string error;
    return sample::WriteSampleContent(dir.path(), {1}, &error);
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

class Corpus : public ::testing::TestWithParam<std::string> {};

TEST_P(Corpus, ChecksReportExactlyTheCaseFindings) {
  const fs::path folder = kCorpus / GetParam();
  const auto expected = nlohmann::json::parse(std::ifstream(folder / "expected.json"));
  TempDir dir;
  const std::string root = dir.path();
  // Links to the sample's files: a check never writes, and a case's file replaces the link.
  fs::copy(SampleTemplate(), root,
           fs::copy_options::recursive | fs::copy_options::create_hard_links);
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file() || entry.path().filename() == "expected.json") continue;
    const fs::path target = root / fs::relative(entry.path(), folder);
    fs::create_directories(target.parent_path());
    fs::remove(target);
    fs::copy_file(entry.path(), target);
  }
  for (const auto& removed : expected.value("remove", nlohmann::json::array())) {
    fs::remove_all(root + removed.get<std::string>());
  }

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
  EXPECT_EQ(found, expected["findings"]) << GetParam() << "\n" << found.dump(2);
  if (expected.contains("reason")) {
    EXPECT_EQ(ReasonFor(root, expected["reason"]["file"]), expected["reason"]["text"]);
  }
}

INSTANTIATE_TEST_SUITE_P(Cases, Corpus, ::testing::ValuesIn(Cases()), [](const auto& info) {
  std::string name = info.param;
  for (char& c : name) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return name;
});

}  // namespace
}  // namespace lumora::testing
