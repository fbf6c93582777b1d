// `lumora export --custom`: a list that cannot be exported as written is a usage error that names
// every problem with its entry and member, before anything is written.
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

namespace fs = std::filesystem;

struct BadList {
  const char* lists;
  std::vector<const char*> said;  // each line the refusal must hold
};

const BadList kBadLists[] = {
    {R"({"packages": [{"id": -1}]})",
     {R"(packages[0]: "id" is -1, not a package identifier, an integer from 0 to 2147483647)",
      R"(packages[0]: "version" is missing)", R"(packages[0]: "idString" is missing)"}},
    {R"({"packageResources": [{"package": 7, "type": 40, "item": 99999999999}]})",
     {R"(packageResources[0]: "item" is 99999999999, not a resource identifier, an integer from 0 to 4294967295)"}},
    {R"({"packageResources": [{"package": 7, "type": 6, "item": 1}, {"package": 2147483648, "type": 40, "item": 1.0}]})",
     {R"(packageResources[0]: "type" is 6, which is not an exercise type)",
      R"(packageResources[1]: "package" is 2147483648, not a package identifier)",
      R"(packageResources[1]: "item" is 1.0, not a resource identifier)"}},
    {R"({"packageResources": [{"package": 7, "type": 40, "item": 1}, {"package": 7, "type": 40, "item": 1}]})",
     {"packageResources[1]: the same row is given already in packageResources[0]"}},
    {R"({"translations": [{"idString": 1, "language": 66, "text": "x"}, {"idString": 1, "language": 2, "text": 5}]})",
     {R"(translations[0]: "language" is 66, not a language number, an integer from 0 to 65)",
      R"(translations[1]: "text" is 5, not a text)"}},
    {R"({"packages": [{"id": 1, "version": 1, "idString": 1, "date": "2002/02/29 10:00:00"},
                      {"id": 2, "version": 1, "idString": 1, "date": "2002-03-01"},
                      {"id": 3, "version": 1, "idString": 1, "date": "2040/01/01 00:00:00"}]})",
     {R"(packages[0]: "date" is "2002/02/29 10:00:00", a day or time that does not exist)",
      R"(packages[1]: "date" is "2002-03-01", not a date YYYY/MM/DD HH:MM:SS)",
      R"(packages[2]: "date" is "2040/01/01 00:00:00", outside the dates a package keeps)"}},
    {R"({"packages": [{"id": 1, "version": 1, "idString": 1}, {"id": 1, "version": 2, "idString": 1}],
        "packageIds": [1, 9, "2"]})",
     {"packages[1]: package 1 is given already in packages[0]",
      R"(packageIds[1]: package 9 is not in "packages")",
      R"(packageIds[2]: is "2", not a package identifier)"}},
    {R"({"package": [], "packageResources": [{"package": 1, "typ": 40, "item": 1}]})",
     {R"(the lists: "package" is not a member here (the members: "packages", "translations")",
      R"(packageResources[0]: "typ" is not a member here)",
      R"(packageResources[0]: "type" is missing)"}},
    {R"({"packageIds": 7, "translations": [7]})",
     {R"("packageIds" is not a list [...])", "translations[0]: is 7, not an object {...}"}},
    {"{\"packages\": [\n  {\"id\": 1,}]}", {"not JSON: parse error at line 2, column 12"}},
};

class ExportListsCli : public SampleContentSuite {
 protected:
  TempDir out;
};

TEST_F(ExportListsCli, BadListsAreUsageErrorsThatNameEachEntryAndMember) {
  for (const BadList& bad : kBadLists) {
    SCOPED_TRACE(bad.lists);
    const std::string lists = out.Write("lists.json", bad.lists);
    const CliResult result =
        RunCli("export " + root() + " -d 1 --custom " + lists + " --to " + out.path() + "dest");
    EXPECT_EQ(result.exit_code, 2);
    for (const char* line : bad.said)
      EXPECT_NE(result.err.find(line), std::string::npos) << result.err;
    EXPECT_EQ(result.err.find("json.exception"), std::string::npos) << result.err;
    EXPECT_FALSE(fs::exists(out.path() + "dest"));
  }
}

TEST_F(ExportListsCli, ExtremeValuesOfEachColumnAreTaken) {
  // The largest identifier of the last course and the first and last dates a package keeps.
  const std::string lists = out.Write("lists.json", R"({
      "packages": [{"id": 2147483647, "version": -2147483648, "idString": 2147483647,
                    "date": "1902/01/01 00:00:00"},
                   {"id": 0, "version": 0, "idString": 0, "date": "2038/01/01 00:00:00"}],
      "translations": [{"idString": 0, "language": 65, "dataType": -1, "text": ""}],
      "packageResources": [{"package": 0, "type": 2000, "item": 4294967295}],
      "packageIds": [2147483647, 0]})");
  const CliResult result = RunCli("export " + root() + " -d 1 --custom " + lists + " --to " +
                                  out.path() + "dest --no-check");
  EXPECT_EQ(result.exit_code, 0) << result.out << result.err;
  const CliResult packages = RunCli("packages " + out.path() + "dest -d 1");
  EXPECT_NE(packages.out.find("2147483647 -2147483648  1902/01/01 00:00:00"), std::string::npos)
      << packages.out;
}

}  // namespace
}  // namespace lumora::testing
