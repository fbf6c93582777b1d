// `lumora diagnosis` loads a user's data and prints the answer with what the objects hold.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"

namespace lumora::testing {
namespace {

TEST(DiagnosisCli, PrintsTheAnswerAndEachDisciplinesObjects) {
  TempDir dir;
  // Discipline 5 is described, but its Local root names a folder that is not there.
  dir.Write("Content.ini", "[001]\r\nDiscipline=4\r\nParam=300\r\n[002]\r\nDiscipline=5\r\nLocal=" +
                               dir.path() + "missing\r\n");
  dir.Write("D004/C0002/r0000040/r0000005.ars", "");
  WriteDescriptions(dir.path() + "D004/", {1});
  WriteDescriptions(dir.path() + "D005/", {1});
  const std::string root = "'" + dir.path() + "'";

  CliResult result = RunCli("diagnosis " + root + " --user 3");
  ASSERT_EQ(result.exit_code, 0);
  nlohmann::json json = nlohmann::json::parse(result.out);
  EXPECT_FALSE(json["answer"]);
  ASSERT_EQ(json["disciplines"].size(), 2u);
  EXPECT_EQ(json["disciplines"][0]["lessons"]["discipline"], 44);
  EXPECT_EQ(json["disciplines"][0]["lessons"]["lessons"], nlohmann::json::array({2}));
  EXPECT_EQ(json["disciplines"][0]["testable"]["resources"], nlohmann::json::array({0x200005}));
  EXPECT_FALSE(json["disciplines"][1]["lessons"]["loaded"]);

  json = nlohmann::json::parse(RunCli("diagnosis " + root + " -d 4 --user 3").out);
  EXPECT_TRUE(json["answer"]);
  EXPECT_EQ(json["disciplines"].size(), 1u);
}

}  // namespace
}  // namespace lumora::testing
