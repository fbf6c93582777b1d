// `lumora glossary` over a content root whose one discipline holds the small test glossary.
#include <lumora/lexicon/glossary.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "lexicon/glossary_fixture.h"

namespace lumora::testing {
namespace {

using nlohmann::json;

class GlossaryCli : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    dir_ = new TempDir;
    CGloV6 glossary;
    FillSmallGlossary(glossary);
    glossary.setFolder(dir_->path() + "d7/C0000/r0001001");
    ASSERT_TRUE(CreateFolderPath(glossary.folder));
    ASSERT_TRUE(glossary.save(true, {}));
    dir_->Write("Content.ini",
                "[001]\nDiscipline=7\nURL=http://cdn/d7/\nLocal=" + dir_->path() + "d7\n");
  }
  static void TearDownTestSuite() {
    delete dir_;
    dir_ = nullptr;
  }

  static CliResult Glossary(const std::string& args) {
    return RunCli("glossary " + dir_->path() + " -d 7 " + args);
  }
  static json Json(const std::string& args) {
    const CliResult result = Glossary(args + " --json");
    EXPECT_EQ(result.exit_code, 0) << args;
    return json::parse(result.out);
  }

  static TempDir* dir_;
};

TempDir* GlossaryCli::dir_ = nullptr;

TEST_F(GlossaryCli, FindGroupsTheFoundWordsByLetter) {
  EXPECT_EQ(Json("find É --prefix"), json::parse(R"([{"letterId":2,"letter":"E","words":[
      {"fnId":20,"writing":"élève"},{"fnId":21,"writing":"été"}]}])"));
  EXPECT_EQ(Json("find e --need-code").size(), 1u);
  EXPECT_EQ(Glossary("find i").out, "A\n  11  Ami\n  10  avion\nL\n  30  lire\n");
  EXPECT_EQ(Json("find zz"), json::array());
}

TEST_F(GlossaryCli, ByLetterAppliesEveryFilter) {
  EXPECT_EQ(Json("by-letter").size(), 3u);
  const auto ids = [](const json& rows) {
    std::vector<int> found;
    for (const json& row : rows) {
      for (const json& word : row["words"]) found.push_back(word["fnId"]);
    }
    return found;
  };
  EXPECT_EQ(ids(Json("by-letter --level 3:1")), (std::vector<int>{11, 21}));
  EXPECT_EQ(ids(Json("by-letter --level 2")), (std::vector<int>{11, 20, 21}));
  EXPECT_EQ(ids(Json("by-letter --class 1020101")), (std::vector<int>{21}));
  EXPECT_EQ(ids(Json("by-letter --need-code --letter 1")), (std::vector<int>{11}));
  EXPECT_EQ(ids(Json("by-letter --linked 10,11")), (std::vector<int>{20, 21, 30}));
  EXPECT_EQ(Glossary("by-letter --level x").exit_code, 2);
}

TEST_F(GlossaryCli, WordShowsEverythingTheGlossaryHoldsAboutIt) {
  const json word = Json("word 10 --path-kind url --quality 2");
  EXPECT_EQ(word["writing"], "avion");
  EXPECT_EQ(word["comments"], "(m) [usage] <fam.> [prendre +  l'avion ] [other]");
  EXPECT_EQ(word["type7"], "{l'avion}");
  EXPECT_EQ(word["translations"], json::parse(R"([{"language":14,"translation":"plane"},
                                                  {"language":17,"translation":"avion"}])"));
  EXPECT_EQ(word["sound"]["status"], 4);
  EXPECT_EQ(word["reco"]["text2"], "a|b|c");
  EXPECT_EQ(word["links"].size(), 2u);
  EXPECT_EQ(word["soundPath"], "http://cdn/d7/C0000/r0001001/Q2/000/10.swf");
  EXPECT_EQ(Json("word 11")["sound"], nullptr);
  EXPECT_EQ(Json("word 11")["soundPath"], "");
  EXPECT_EQ(Glossary("word 12").exit_code, 1);
}

TEST_F(GlossaryCli, LettersListsEveryLetterSection) {
  EXPECT_EQ(Glossary("letters").out, "1  A\n2  E\n3  L\n");
  EXPECT_EQ(Json("letters")[1], json::parse(R"({"letterId":2,"letter":"E"})"));
}

}  // namespace
}  // namespace lumora::testing
