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

// An index whose offsets are all wrong gives one finding per word: the text shows the first 20 and
// counts the rest, the JSON keeps them all; a finding standing for several says how many.
TEST_F(CheckCli, TheTextShowsTwentyFindingsOfOneProblemAndTheJsonCountsRepeats) {
  std::string offsets = dir.Read("D001/C0000/r0001001/t_Glo_Sounds.idx");
  for (size_t at = 0; at + 4 <= offsets.size(); at += 4) {
    if (offsets.compare(at, 4, std::string(4, '\xFF')) != 0) ++offsets[at];
  }
  dir.Write("D001/C0000/r0001001/t_Glo_Sounds.idx", offsets);
  std::string ini = dir.Read("Content.ini");
  ini.insert(ini.find("[001]\r\n") + 7, "Note=1\r\nNote=2\r\nNote=3\r\n");
  dir.Write("Content.ini", ini);

  const CliResult json_run = RunCli("check " + root() + " -d 1 --checks config,glossary --json");
  const auto json = nlohmann::json::parse(json_run.out);
  EXPECT_EQ(json["checks"][0]["findings"][1]["count"], 3) << json["checks"][0].dump();
  size_t word_findings = 0;
  for (const auto& finding : json["checks"][1]["findings"]) {
    EXPECT_FALSE(finding.contains("count")) << finding.dump();
    if (finding["message"].get<std::string>().starts_with("gives word")) ++word_findings;
  }
  ASSERT_GT(word_findings, 20u);

  const CliResult text = RunCli("check " + root() + " -d 1 --checks glossary");
  size_t shown = 0;
  for (size_t at = text.out.find(": gives word"); at != std::string::npos;
       at = text.out.find(": gives word", at + 1)) {
    ++shown;
  }
  EXPECT_EQ(shown, 20u) << text.out;
  EXPECT_NE(text.out.find("and " + std::to_string(word_findings - 20) + " more like this\n"),
            std::string::npos)
      << text.out;
}

}  // namespace
}  // namespace lumora::testing
