// `lumora verify` and `lumora rebuild-index` over a discipline with two type-40 exercises in two
// courses: the first refers only to an element that is there, the second to one that is not. The
// discipline's type-40 index was written before the second exercise, so it lists only the first.
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"
#include "resources/resource_builders.h"

namespace lumora::testing {
namespace {

constexpr uint32_t kElement = MakeResourceId(1, 7);
constexpr uint32_t kMissingElement = MakeResourceId(1, 8);
constexpr uint32_t kGood = MakeResourceId(1, 30);
constexpr uint32_t kBroken = MakeResourceId(2, 31);

class MaintenanceCli : public ::testing::Test {
 protected:
  void SetUp() override {
    dir.Write("Content.ini", "[001]\r\nDiscipline=5\r\nURL=http://cdn.test/c/\r\n");
    WriteResource(local(), kElement, *FullElement(u"Bonjour"));
    WriteExercise(kGood, 3, kElement);
    ASSERT_TRUE(BuildTypeIndex(40, local(), local()));
    WriteDescriptions(local(), {});
    WriteExercise(kBroken, 4, kMissingElement);
  }

  // Its part shows the element that is there; its item content refers to `content`.
  void WriteExercise(uint32_t id, uint8_t group, uint32_t content) const {
    Type40Resource exercise;
    exercise.groupKey = group;
    AddItem(exercise, {kElement}).content = *ReferenceElement(content);
    WriteResource(local(), id, exercise);
  }

  std::string local() const { return dir.path() + "D005/"; }
  std::string root() const { return "'" + dir.path() + "' -d 5"; }

  TempDir dir;
};

TEST_F(MaintenanceCli, VerifyReportsTheMissingReferenceOfAnIndexedResource) {
  // Only what the index lists is checked: the broken exercise is not indexed yet.
  EXPECT_EQ(RunCli("verify " + root()).exit_code, 0);
  ASSERT_EQ(RunCli("rebuild-index " + root() + " --type 40 --in-place").exit_code, 0);

  const CliResult json = RunCli("verify " + root() + " --type 40 --quality 1 --json");
  EXPECT_EQ(json.exit_code, 1);
  const nlohmann::json results = nlohmann::json::parse(json.out);
  ASSERT_EQ(results.size(), 2u);
  EXPECT_EQ(results[0]["resourceId"], kGood);
  EXPECT_EQ(results[0]["ok"], true);
  EXPECT_EQ(results[1]["resourceId"], kBroken);
  EXPECT_EQ(results[1]["ok"], false);
  EXPECT_NE(results[1]["report"].get<std::string>().find("File not found: " + local() +
                                                         "C0001/r0001005/r0000008.ars"),
            std::string::npos)
      << json.out;

  const CliResult human = RunCli("verify " + root());
  EXPECT_EQ(human.exit_code, 1);
  EXPECT_NE(human.out.find("type 40 resource 0x0020001f:\n"), std::string::npos) << human.out;
  EXPECT_NE(human.out.find("File not found"), std::string::npos);
  EXPECT_EQ(RunCli("verify " + root() + " --quality 4").exit_code, 2);
}

TEST_F(MaintenanceCli, RebuildIndexWritesElsewhereUnlessToldToOverwrite) {
  const std::string before = dir.Read("D005/r0000040.ari");

  EXPECT_EQ(RunCli("rebuild-index " + root() + " --type 40").exit_code, 2);
  EXPECT_EQ(dir.Read("D005/r0000040.ari"), before);

  const CliResult out =
      RunCli("rebuild-index " + root() + " --type 40 --out '" + dir.path() + "out' --json");
  ASSERT_EQ(out.exit_code, 0) << out.out;
  EXPECT_EQ(nlohmann::json::parse(out.out),
            nlohmann::json::parse(R"([{"type":40,"ok":true,"groups":2,"entries":2}])"));
  EXPECT_EQ(dir.Read("D005/r0000040.ari"), before);
  const std::string rebuilt = dir.Read("out/r0000040.ari");
  EXPECT_NE(rebuilt, before);

  ASSERT_EQ(RunCli("rebuild-index " + root() + " --type 40 --in-place").exit_code, 0);
  EXPECT_EQ(dir.Read("D005/r0000040.ari"), rebuilt);
}

}  // namespace
}  // namespace lumora::testing
