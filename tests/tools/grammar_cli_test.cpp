// `lumora grammar` over the sample content, whose grammar is the same in every discipline but
// for its course-language texts.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"

namespace lumora::testing {
namespace {

using nlohmann::json;

class GrammarCli : public SampleContentSuite {
 protected:
  static CliResult Grammar(const std::string& args) {
    return RunCli("grammar " + root() + " -d 1 " + args);
  }
  static json Json(const std::string& args) {
    const CliResult result = Grammar(args + " --json");
    EXPECT_EQ(result.exit_code, 0) << args;
    return json::parse(result.out);
  }
};

TEST_F(GrammarCli, PointShowsEverythingThePointHolds) {
  const json point = Json("point 1");
  EXPECT_EQ(point["name"], "Articles");
  EXPECT_EQ(point["flag"], 1);
  EXPECT_EQ(point["titles"], json::parse(R"([{"language":14,"title":"Articles"},
                                             {"language":17,"title":"Les articles"}])"));
  EXPECT_EQ(point["pictures"].size(), 2u);
  ASSERT_EQ(point["subpoints"].size(), 2u);
  EXPECT_EQ(point["subpoints"][1], json::parse(R"({"id":1002,"level":1,"category":1020000,
      "titles":[{"language":14,"title":"Indefinite article"}],
      "keywords":[{"id":100201,"keyword":"un"}]})"));
  EXPECT_EQ(point["bubbles"][0]["text"], "Le chat dort.");

  const CliResult text = Grammar("point 1");
  EXPECT_NE(text.out.find("  subpoint 1001  level 1  category 1010000\n"), std::string::npos)
      << text.out;
  EXPECT_EQ(Grammar("point 9").exit_code, 1);
}

TEST_F(GrammarCli, FindListsEachPointOnceWithItsTitle) {
  EXPECT_EQ(Json("find verbs --language 14"),
            json::parse(R"([{"point":2,"title":"Present tense"}])"));
  EXPECT_EQ(Json("find Verbs --language 14"), json::array());
  EXPECT_EQ(Grammar("find est-ce --language 17").out, "3  Les questions\n");
}

TEST_F(GrammarCli, LevelsAndCategoriesFollowTheLinkFilters) {
  EXPECT_EQ(Grammar("levels").out, "level 1: 1\nlevel 2: 2 3\n");
  // Lesson 3 teaches the questions, lesson 1 the articles and the verbs.
  EXPECT_EQ(Json("levels --first 3"), json::parse(R"([{"level":2,"points":[3]}])"));
  EXPECT_EQ(Json("categories --first 1"), json::parse(R"([
      {"category":1000000,"subcategories":[{"subcategory":1010000,"points":[1]},
                                           {"subcategory":1020000,"points":[1]}]},
      {"category":2000000,"subcategories":[{"subcategory":2010000,"points":[2]},
                                           {"subcategory":2020000,"points":[2]}]}])"));
  EXPECT_EQ(Grammar("categories").out,
            "category 1000000\n  1010000: 1\n  1020000: 1\n  1030000: 3\n"
            "category 2000000\n  2010000: 2\n  2020000: 2\n");
}

}  // namespace
}  // namespace lumora::testing
