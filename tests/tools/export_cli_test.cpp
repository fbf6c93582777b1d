// `lumora export` over the sample content: what the tool prepares around the library's export,
// its JSON, its custom lists, its refusals, and the progress bar it keeps out of JSON.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

class ExportCli : public SampleContentSuite {
 protected:
  CliResult Export(const std::string& args) {
    return RunCli("export " + root() + " -d 1 --to " + out.path() + "dest " + args);
  }
  TempDir out;
};

TEST_F(ExportCli, ExportsIntoAContentRootOfItsOwnAndSaysWhatItWrote) {
  const CliResult result = Export("--packages 1,4 --json");
  ASSERT_EQ(result.exit_code, 0) << result.out << result.err;
  const json summary = json::parse(result.out);
  EXPECT_EQ(summary["ok"], true);
  EXPECT_EQ(summary["exportFolder"], out.path() + "dest/D001/");
  EXPECT_EQ(summary["report"], json::array());
  EXPECT_EQ(summary["resources"], 11);
  EXPECT_GT(summary["filesCopied"].get<int>(), 100);
  EXPECT_EQ(result.err, "");  // no progress bar with --json, even when asked for

  const std::string ini = out.Read("dest/Content.ini");
  EXPECT_TRUE(ini.starts_with("[001]\r\nDiscipline=1\r\nType=0\r\nParam=")) << ini;
  EXPECT_EQ(ini.find("Local"), std::string::npos);
  const CliResult packages = RunCli("packages " + out.path() + "dest -d 1 --json");
  ASSERT_EQ(packages.exit_code, 0) << packages.err;
  EXPECT_EQ(json::parse(packages.out).size(), 2u);

  // Again into the same place: the database already holds its tables.
  const CliResult again = Export("--packages 1 --progress");
  EXPECT_EQ(again.exit_code, 1);
  EXPECT_NE(again.out.find("Can not create t_Packages table for "), std::string::npos);
  EXPECT_NE(again.err.find("the export reported problems"), std::string::npos);
}

TEST_F(ExportCli, CustomListsComeFromAJsonFile) {
  const std::string lists = out.Write("lists.json", R"({
      "packages": [{"id": 7, "version": 2, "date": "2002/03/14 09:05:00", "idString": 70}],
      "translations": [{"idString": 70, "language": 17, "text": "L'été"}],
      "packageResources": [{"package": 7, "type": 40, "item": 1048577}],
      "packageIds": [7]})");
  const CliResult result = Export("--custom " + lists + " --progress");
  ASSERT_EQ(result.exit_code, 0) << result.out << result.err;
  EXPECT_NE(result.err.find("1/1 resources  done"), std::string::npos) << result.err;
  EXPECT_FALSE(fs::exists(out.path() + "dest/D001/Diagnosis.txt"));
  const CliResult packages = RunCli("packages " + out.path() + "dest -d 1");
  EXPECT_NE(packages.out.find("FRA (1252): L'été"), std::string::npos) << packages.out;

  const std::string broken = out.Write("broken.json", R"({"packages": [{"id": 7}]})");
  const CliResult refused = Export("--custom " + broken);
  EXPECT_EQ(refused.exit_code, 1);
  EXPECT_NE(refused.err.find(broken + ": "), std::string::npos) << refused.err;
}

TEST_F(ExportCli, UsageErrorsAndDestinationsThatCannotServe) {
  EXPECT_EQ(Export("").exit_code, 2);
  EXPECT_EQ(Export("--packages 1 --quality 4").exit_code, 2);
  EXPECT_EQ(Export("--packages 1 --with-diagnosis").exit_code, 2);
  EXPECT_EQ(Export("--packages 1 --custom x.json").exit_code, 2);

  out.Write("dest", "a file");
  const CliResult file = Export("--packages 1");
  EXPECT_EQ(file.exit_code, 1);
  EXPECT_NE(file.err.find("is not a folder"), std::string::npos) << file.err;

  // A destination whose configuration sends its files elsewhere would have them rewritten.
  fs::remove(out.path() + "dest");
  out.Write("dest/Content.ini", "[Common]\r\nLocal=" + root() + "\r\n");
  const CliResult elsewhere = Export("--packages 1");
  EXPECT_EQ(elsewhere.exit_code, 1);
  EXPECT_NE(elsewhere.err.find("outside the destination"), std::string::npos) << elsewhere.err;
  EXPECT_FALSE(fs::exists(out.path() + "dest/D001"));
}

}  // namespace
}  // namespace lumora::testing
