// `lumora packages` over the sample content, whose disciplines each hold four packages with
// titles in English, the course language and Russian.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"

namespace lumora::testing {
namespace {

using nlohmann::json;

class PackagesCli : public SampleContentSuite {
 protected:
  static CliResult Packages(const std::string& args) {
    return RunCli("packages " + root() + " " + args);
  }
};

TEST_F(PackagesCli, PackagesWithTheirTitlesInEveryLanguage) {
  const CliResult result = Packages("-d 2 --json");
  ASSERT_EQ(result.exit_code, 0) << result.out;
  const json packages = json::parse(result.out);
  ASSERT_EQ(packages.size(), 4u);
  EXPECT_EQ(packages[0], json::parse(R"({"id":1,"version":3,"date":"2024/01/15 09:30:00",
      "idString":100,"titles":[
        {"language":14,"code":"ANG","codePage":1252,"text":"Beginner's course"},
        {"language":18,"code":"ALL","codePage":1252,"text":"Anfängerkurs"},
        {"language":31,"code":"RUS","codePage":1251,"text":"Курс для начинающих"}]})"));
  EXPECT_EQ(packages[2]["titles"][2]["text"], "Повторение");

  const CliResult text = Packages("-d 1");
  EXPECT_NE(text.out.find("FRA (1252): Cours pour débutants"), std::string::npos) << text.out;
}

TEST_F(PackagesCli, ResourceRowsOfTheNamedPackages) {
  const CliResult result = Packages("-d 1 --resources 2,3 --json");
  ASSERT_EQ(result.exit_code, 0) << result.out;
  EXPECT_EQ(json::parse(result.out), json::parse(R"([
      {"package":2,"type":40,"item":2097155},{"package":2,"type":1005,"item":2097157},
      {"package":3,"type":40,"item":1048577},{"package":3,"type":40,"item":2097155},
      {"package":3,"type":1005,"item":1048578}])"));
  // Every listed resource exists in the sample.
  for (const auto& row : json::parse(result.out)) {
    const CliResult resource = RunCli("resource " + root() + " -d 1 --type " + row["type"].dump() +
                                      " --id " + row["item"].dump());
    EXPECT_EQ(resource.exit_code, 0) << row;
  }
}

TEST_F(PackagesCli, DisciplineWithoutDatabaseFails) { EXPECT_EQ(Packages("-d 9").exit_code, 1); }

}  // namespace
}  // namespace lumora::testing
