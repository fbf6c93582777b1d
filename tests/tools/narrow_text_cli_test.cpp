// Narrow texts that are not UTF-8 reach the tool's JSON decoded: a Content.ini value with a
// code-page 1252 byte, and paths given on the command line with a byte of no known code page.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

using nlohmann::json;

// Replaces every `from` in the file by `to`.
void Patch(const TempDir& dir, const std::string& name, const std::string& from,
           const std::string& to) {
  std::string text = dir.Read(name);
  for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  dir.Write(name, text);
}

json ParsedJson(const std::string& args) {
  const CliResult result = RunCli(args + " --json");
  EXPECT_EQ(result.exit_code, 0) << args << "\n" << result.err;
  return json::parse(result.out);
}

TEST(NarrowTextCli, ContentIniValuesInTheWindowsCodePageBecomeUtf8) {
  TempDir dir;
  ASSERT_EQ(RunCli("sample '" + dir.path() + "'").exit_code, 0);
  // "é" once as the byte code page 1252 gives it, once already in UTF-8.
  Patch(dir, "Content.ini", "/course/D001/", "/cours\xE9/D001/");
  Patch(dir, "Content.ini", "/course/D002/", "/cours\xC3\xA9-utf8/D002/");
  const std::string root = "'" + dir.path() + "'";

  const json opened = ParsedJson("open " + root);
  EXPECT_EQ(opened["disciplines"][0]["urlRoot"], "http://content.lumora.test/cours\u00e9/D001/");
  EXPECT_EQ(opened["disciplines"][1]["urlRoot"],
            "http://content.lumora.test/cours\u00e9-utf8/D002/");

  const json resource = ParsedJson("resource " + root + " -d 1 --type 40 --id 2097155");
  ASSERT_FALSE(resource["allMedia"].empty());
  for (const json& media : resource["allMedia"]) {
    EXPECT_EQ(media["path"].get<std::string>().rfind("http://content.lumora.test/cours\u00e9/", 0),
              0u)
        << media;
  }
}

TEST(NarrowTextCli, ArgumentsOfNoKnownCodePageGetReplacementCharacters) {
  TempDir dir;
  const std::string path = dir.Write("caf\xE9.txt", "x");
  const json list = ParsedJson("crc '" + path + "'");
  EXPECT_EQ(list[0]["path"], dir.path() + "caf\uFFFD.txt");
}

}  // namespace
}  // namespace lumora::testing
