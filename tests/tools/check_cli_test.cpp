// `lumora check` end to end: the JSON shape, the exit codes and the reason a resource that does
// not decode gives.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "check/check_fixture.h"
#include "fixtures/run_cli.h"

namespace lumora::testing {
namespace {

using CheckCli = CheckTest;

// The sample checks clean but for the media problems it plants for the media check to find.
TEST_F(CheckCli, TheJsonNamesEveryCheckAndTheSampleHasOnlyItsPlantedProblems) {
  const CliResult result = RunCli("check " + root() + " --json");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.err, "lumora: 9 errors found\n") << "no progress bar with --json";
  const auto json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["ok"], false);
  std::vector<std::string> names;
  for (const auto& check : json["checks"]) {
    names.push_back(check["name"]);
    EXPECT_GT(check["checked"].get<uint64_t>(), 0u) << check["name"];
    EXPECT_EQ(check["errors"], check["name"] == "media" ? 9 : 0) << check.dump();
  }
  EXPECT_EQ(names, CheckNames());
}

TEST_F(CheckCli, AnErrorExitsWithOneAndAnUnknownCheckIsAUsageError) {
  const std::string whole = dir.Read("D001/C0001/r0000005/r0000001.ars");
  dir.Write("D001/C0001/r0000005/r0000001.ars", whole.substr(0, 30));

  const CliResult checked = RunCli("check " + root() + " --checks resources,names --json");
  EXPECT_EQ(checked.exit_code, 1);
  const auto json = nlohmann::json::parse(checked.out);
  EXPECT_EQ(json["ok"], false);
  ASSERT_EQ(json["checks"].size(), 2u);
  EXPECT_EQ(json["checks"][0]["findings"][0],
            nlohmann::json({{"severity", "error"},
                            {"file", "D001/C0001/r0000005/r0000001.ars"},
                            {"message",
                             "does not decode as type 5 (at byte 30: unexpected end "
                             "of file)"}}));

  const CliResult text = RunCli("check " + root() + " -d 1 --checks resources");
  EXPECT_EQ(text.exit_code, 1);
  EXPECT_NE(text.out.find("resources"), std::string::npos);
  EXPECT_EQ(text.err, "lumora: 1 error found\n");

  // The resource command gives the same reason.
  const CliResult resource = RunCli("resource " + root() + " -d 1 --type 5 --id 0x100001");
  EXPECT_EQ(resource.exit_code, 1);
  EXPECT_EQ(resource.err,
            "lumora: D001/C0001/r0000005/r0000001.ars: at byte 30: unexpected end of file\n");

  EXPECT_EQ(RunCli("check " + root() + " --checks nothing").exit_code, 2);
  EXPECT_EQ(RunCli("check " + root() + " --quality 4").exit_code, 2);
}

}  // namespace
}  // namespace lumora::testing
