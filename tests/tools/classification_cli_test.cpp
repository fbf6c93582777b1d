#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <map>
#include <string>

#include <lumora/platform/profile.h>
#include <lumora/sample/sample_classes.h>
#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

class ClassificationCli : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleClassification(dir.path(), &error)) << error;
    classes = dir.path() + "Classes/";
  }

  nlohmann::json CheckSets(int expected_exit) const {
    CliResult result = RunCli("check-sets --json '" + classes + "'");
    EXPECT_EQ(result.exit_code, expected_exit) << result.out;
    return nlohmann::json::parse(result.out);
  }

  TempDir dir;
  std::string classes;
};

TEST_F(ClassificationCli, ShowsTheTablesWithALabelPerLanguageCode) {
  dir.Write("Content.ini", "[001]\nDiscipline=1\n");
  CliResult result = RunCli("classification --json '" + dir.path() + "'");
  ASSERT_EQ(result.exit_code, 0);
  const nlohmann::json json = nlohmann::json::parse(result.out);
  EXPECT_EQ(json["folder"], classes);
  const nlohmann::json& verb = json["t_CatGram"][3];
  EXPECT_EQ(verb["id"], 20000);
  EXPECT_EQ(verb["label"], "Verb");
  EXPECT_EQ(verb["labels"]["ALL"], "Verb");
  EXPECT_EQ(verb["labels"]["JPN"], "動詞");
  EXPECT_EQ(verb["labels"]["FRA"], "Verbe");
  EXPECT_EQ(json["t_Expression_SyntacticFunction"].size(), 5u);

  EXPECT_EQ(RunCli("classification '" + dir.path() + "missing'").exit_code, 1);
}

TEST_F(ClassificationCli, CheckSetsReportsGoodChangedUnlistedShortAndRefusedFiles) {
  nlohmann::json all_good = CheckSets(0);
  ASSERT_EQ(all_good.size(), 5u);
  EXPECT_EQ(all_good[0], nlohmann::json({{"table", "t_CatGram"},
                                         {"version", 1},
                                         {"records", 9},
                                         {"checksum", "good"},
                                         {"versionAccepted", true},
                                         {"decoded", true},
                                         {"reason", nullptr}}));

  std::string changed = dir.Read("Classes/t_FamSem.set");
  changed.back() ^= 1;
  dir.Write("Classes/t_FamSem.set", changed);
  // Not in CRCFile.ini, and of families with other version rules.
  dir.Write("Classes/t_Glo_Words.set", std::string("\x63\0\0\0\0\0\0\0", 8));
  dir.Write("Classes/t_Gr_Points.set", std::string("\x02\0\0\0\0\0\0\0", 8));
  dir.Write("Classes/t_Short.set", std::string("\x01\0\0\0", 4));
  dir.Write("Classes/notes.txt", "not a set file");

  const nlohmann::json checks = CheckSets(1);
  ASSERT_EQ(checks.size(), 8u);
  std::map<std::string, nlohmann::json> by_table;
  for (const auto& check : checks) by_table[check["table"]] = check;
  EXPECT_EQ(by_table["t_FamSem"]["checksum"], "bad");
  EXPECT_EQ(by_table["t_CatGram"]["checksum"], "good");
  EXPECT_EQ(by_table["t_Glo_Words"]["checksum"], "unlisted");
  EXPECT_EQ(by_table["t_Glo_Words"]["version"], 99);
  EXPECT_EQ(by_table["t_Glo_Words"]["versionAccepted"], true);
  EXPECT_EQ(by_table["t_Glo_Words"]["decoded"], nullptr);
  EXPECT_EQ(by_table["t_Gr_Points"]["versionAccepted"], false);
  EXPECT_EQ(by_table["t_Gr_Points"]["reason"],
            "at byte 0: version 2 is refused: grammar tables take 1 and below");
  EXPECT_EQ(by_table["t_Short"]["checksum"], "bad");
  EXPECT_TRUE(by_table["t_Short"]["version"].is_null());

  // A refused version alone is enough to fail.
  std::filesystem::remove(classes + "t_FamSem.set");
  std::filesystem::remove(classes + "t_Short.set");
  EXPECT_EQ(CheckSets(1).size(), 6u);
  std::filesystem::remove(classes + "t_Gr_Points.set");
  EXPECT_EQ(CheckSets(0).size(), 5u);
}

// A file cut inside a record whose checksum nobody recorded has a good header and nothing to
// compare: only reading its records shows the damage.
TEST_F(ClassificationCli, CheckSetsDecodesTheRecordsOfKnownTables) {
  std::string categories = dir.Read("Classes/t_CatGram.set");
  categories.resize(14);
  dir.Write("Classes/t_CatGram.set", categories);
  ASSERT_TRUE(profile::WriteString(classes + "CRCFile.ini", "Main", "t_CatGram.set", "0"));
  const nlohmann::json checks = CheckSets(1);
  EXPECT_EQ(checks[0]["checksum"], "unlisted");
  EXPECT_EQ(checks[0]["decoded"], false);
  EXPECT_EQ(checks[0]["reason"],
            "at byte 14: the file ends inside record 1 of 9, which starts at byte 8");
  const CliResult text = RunCli("check-sets '" + classes + "'");
  EXPECT_EQ(text.out.substr(0, text.out.find('\n', text.out.find('\n') + 1) + 1),
            "t_CatGram                        version 1  records 9  checksum unlisted\n"
            "    does not load: at byte 14: the file ends inside record 1 of 9, which starts at "
            "byte 8\n");
}

}  // namespace
}  // namespace lumora::testing
