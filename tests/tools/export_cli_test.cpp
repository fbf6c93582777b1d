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
  const CliResult result = Export("--packages 1,4 --json --no-check");
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
  const CliResult again = Export("--packages 1 --progress --no-check");
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
  const CliResult result = Export("--custom " + lists + " --progress --no-check");
  ASSERT_EQ(result.exit_code, 0) << result.out << result.err;
  EXPECT_NE(result.err.find("1/1 resources  done"), std::string::npos) << result.err;
  EXPECT_FALSE(fs::exists(out.path() + "dest/D001/Diagnosis.txt"));
  const CliResult packages = RunCli("packages " + out.path() + "dest -d 1");
  EXPECT_NE(packages.out.find("FRA (1252): L'été"), std::string::npos) << packages.out;
}

// Lists of one resource row, exported with the check.
class CheckedExportCli : public ExportCli {
 protected:
  CliResult ExportRow(uint32_t type, uint32_t item, const std::string& dest,
                      const std::string& args = "--json") {
    const std::string lists = out.Write(
        "row.json", R"({"packageResources": [{"package": 1, "type": )" + std::to_string(type) +
                        R"(, "item": )" + std::to_string(item) + "}]}");
    return RunCli("export " + root() + " -d 1 --custom " + lists + " --to " + out.path() + dest +
                  " " + args);
  }

  static json Findings(const json& summary, const std::string& check) {
    for (const json& report : summary["checks"]) {
      if (report["name"] == check) return report["findings"];
    }
    return nullptr;
  }
};

TEST_F(CheckedExportCli, MediaTheExportLeavesBehindAreOneWarningPerTypeUnlessCopied) {
  const CliResult plain = ExportRow(21, 0x100001, "plain");
  ASSERT_EQ(plain.exit_code, 0) << plain.out << plain.err;
  const json summary = json::parse(plain.out);
  EXPECT_EQ(summary["ok"], true);
  ASSERT_EQ(summary["checks"].size(), 9u);
  const json media = Findings(summary, "media");
  ASSERT_EQ(media.size(), 1u) << media;
  EXPECT_EQ(media[0]["severity"], "warning");
  EXPECT_EQ(media[0]["count"], 2);
  EXPECT_NE(media[0]["message"].get<std::string>().find("type 21"), std::string::npos);

  const CliResult copied = ExportRow(21, 0x100001, "copied", "--json --all-media");
  ASSERT_EQ(copied.exit_code, 0) << copied.out << copied.err;
  const json all = json::parse(copied.out);
  EXPECT_EQ(Findings(all, "media"), json::array());
  EXPECT_EQ(all["allMedia"]["problems"], json::array());
  EXPECT_EQ(all["filesCopied"],
            summary["filesCopied"].get<int>() + all["allMedia"]["files"].get<int>());
  EXPECT_EQ(all["allMedia"]["files"], 6);  // two pictures, one in each quality folder
  EXPECT_FALSE(fs::exists(out.path() + "plain/D001/C0001/r0000021/Q1"));
  EXPECT_TRUE(fs::exists(out.path() + "copied/D001/C0001/r0000021/Q1"));

  const CliResult unchecked = ExportRow(21, 0x100001, "unchecked", "--json --no-check");
  EXPECT_FALSE(json::parse(unchecked.out).contains("checks"));
}

// An exercise whose package lists none of the elements it links to: the export carries none of
// them, which is its rule and not damage, said once for the type and counted.
TEST_F(CheckedExportCli, LinksToElementsNoPackageListsAreOneWarningPerType) {
  const CliResult result = ExportRow(40, 0x100001, "linked");
  ASSERT_EQ(result.exit_code, 0) << result.out << result.err;
  const json media = Findings(json::parse(result.out), "media");
  ASSERT_EQ(media.size(), 1u) << media;
  EXPECT_EQ(media[0]["severity"], "warning");
  EXPECT_GT(media[0]["count"].get<int>(), 1);
  const std::string message = media[0]["message"];
  EXPECT_TRUE(message.starts_with("type 40: ")) << message;
  EXPECT_NE(message.find("of 1 resource name type-1005 resources"), std::string::npos) << message;

  const CliResult text = ExportRow(40, 0x100001, "linked-text", "");
  EXPECT_EQ(text.exit_code, 0) << text.out << text.err;
  EXPECT_NE(text.out.find("warning D001/: type 40: "), std::string::npos) << text.out;
}

TEST_F(CheckedExportCli, AMediumTheExportFailedToCopyFailsTheCommand) {
  // A folder where a picture goes: the library's copy fails, and the library does not say so.
  fs::create_directories(out.path() + "blocked/D001/C0001/r0000009/Q1/p0000001.swf");
  const CliResult result = ExportRow(9, 0x100001, "blocked", "");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.out.find("(with problems)"), std::string::npos) << result.out;
  EXPECT_NE(result.out.find("error   D001/C0001/r0000009/r0000001.ars: File not found : "
                            "D001/C0001/r0000009/Q1/p0000001.swf"),
            std::string::npos)
      << result.out;
  EXPECT_NE(result.err.find("found 1 error that the source does not have"), std::string::npos)
      << result.err;
}

TEST_F(CheckedExportCli, WhatTheSourceLacksTooIsInheritedAndFilesCopiedCountsOnlyNewFiles) {
  const CliResult fresh = ExportRow(1006, 0x100003, "fresh");
  ASSERT_EQ(fresh.exit_code, 0) << fresh.out << fresh.err;
  const json summary = json::parse(fresh.out);
  const json media = Findings(summary, "media");
  ASSERT_EQ(media.size(), 1u) << media;
  EXPECT_EQ(media[0]["severity"], "error");
  EXPECT_EQ(media[0]["inherited"], true);

  // Files that were there before the export are not its own.
  out.Write("old/D001/earlier.txt", "kept");
  out.Write("old/Classes/earlier.txt", "kept");
  const CliResult beside = ExportRow(1006, 0x100003, "old", "--json --no-check");
  ASSERT_EQ(beside.exit_code, 0) << beside.out << beside.err;
  EXPECT_EQ(json::parse(beside.out)["filesCopied"], summary["filesCopied"]);
  EXPECT_EQ(json::parse(beside.out)["bytesCopied"], summary["bytesCopied"]);

  const CliResult text = ExportRow(1006, 0x100003, "text", "");
  EXPECT_NE(text.out.find("p0000033.swf! (the source has it too)"), std::string::npos) << text.out;
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
