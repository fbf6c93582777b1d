// The content commands of the tool over a small content root: one discipline with a type-1005
// element whose picture lies only in Q2 and a type-40 resource whose item refers to it and
// carries a video.
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"
#include "resources/resource_builders.h"

namespace lumora::testing {
namespace {

constexpr uint32_t kElement = MakeResourceId(1, 7);
constexpr uint32_t kExercise = MakeResourceId(2, 30);

class ContentCli : public ::testing::Test {
 protected:
  void SetUp() override {
    dir.Write("Content.ini",
              "[Common]\r\nURL=http://common.test/\r\n"
              "[001]\r\nDiscipline=5\r\nURL=http://cdn.test/c/\r\nUNC=\\\\srv\\c\\\r\n"
              "Param=17\r\n[002]\r\nType=1\r\nDiscipline=6\r\n");
    const std::string local = dir.path() + "D005/";
    auto element = FullElement(u"Bonjour", kElement, u"Hello", 4);
    WriteResource(local, kElement, *element);
    dir.Write("D005/C0001/r0001005/Q2/p0000007.swf", "pic");

    Type40Resource exercise;
    exercise.groupKey = 3;
    ExerciseItem& item = AddItem(exercise, {kElement});
    item.media.Add(std::make_unique<MediaRef>(kMediaVideo, 40, kExercise));
    WriteResource(local, kExercise, exercise);
    dir.Write("D005/C0002/r0000040/Q1/v0000030.avi", "avi");
    dir.Write("D005/C0002/r0000040/Q3/v0000030.mpg", "mpg");

    ASSERT_TRUE(BuildTypeIndex(1005, local, local));
    ASSERT_TRUE(BuildTypeIndex(40, local, local));
    WriteDescriptions(local, {3, 1, 3});
    WriteDescriptions(dir.path() + "D006/", {});
  }

  nlohmann::json Json(const std::string& args, int expected_exit = 0) const {
    CliResult result = RunCli(args + " --json");
    EXPECT_EQ(result.exit_code, expected_exit) << args;
    return nlohmann::json::parse(result.out);
  }

  std::string root() const { return "'" + dir.path() + "'"; }

  TempDir dir;
};

TEST_F(ContentCli, DisciplinesListEverySectionAndOpenOnlyTypeZero) {
  nlohmann::json list = Json("disciplines " + root());
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(list[0]["id"], 5);
  EXPECT_EQ(list[0]["param"], 17);
  EXPECT_EQ(list[0]["values"], nlohmann::json({1, 3}));
  EXPECT_EQ(list[1]["type"], 1);

  nlohmann::json open = Json("open " + root());
  EXPECT_EQ(open["ok"], true);
  ASSERT_EQ(open["disciplines"].size(), 1u);
  const nlohmann::json& d = open["disciplines"][0];
  EXPECT_EQ(d["urlRoot"], "http://cdn.test/c/");
  EXPECT_EQ(d["dataFolder"], dir.path() + "D005/");
  EXPECT_EQ(d["types"], nlohmann::json({40, 2000, 1005}));
  EXPECT_EQ(Json("open " + root() + " --filter 6", 1)["ok"], false);
}

TEST_F(ContentCli, IndexShowsGroupsElementsAndDescriptions) {
  nlohmann::json types = Json("index " + root() + " -d 5")["types"];
  ASSERT_EQ(types.size(), 3u);
  EXPECT_EQ(types[0]["type"], 40);
  EXPECT_EQ(types[0]["groups"], nlohmann::json::parse(R"([{"key":3,"resources":[30]}])"));
  EXPECT_EQ(types[1]["type"], 2000);
  ASSERT_EQ(types[1]["entries"].size(), 3u);
  EXPECT_EQ(types[1]["entries"][1]["number"], 11);
  EXPECT_EQ(types[1]["entries"][1]["attribute"], 1);
  EXPECT_EQ(types[2]["entries"][0]["number"], 7);
  EXPECT_EQ(types[2]["entries"][0]["flagA"], true);
  EXPECT_EQ(types[2]["entries"][0]["values"], nlohmann::json({4}));

  EXPECT_EQ(Json("index " + root() + " -d 5 --type 1005")["types"].size(), 1u);
  EXPECT_EQ(RunCli("index " + root() + " -d 5 --type 12").exit_code, 1);
  CliResult human = RunCli("index " + root() + " -d 5 --type 40");
  EXPECT_EQ(human.out, "type 40\n  sorted: false\n  key 3: [30]\n");
}

TEST_F(ContentCli, ResourceExpandsReferencesAndAnswersUrlAndUncPaths) {
  nlohmann::json url = Json("resource " + root() + " -d 5 --type 40 --id 0x20001e");
  EXPECT_EQ(url["ok"], true);
  EXPECT_EQ(url["course"], 2);
  EXPECT_EQ(url["number"], 30);
  EXPECT_EQ(url["groupKey"], 3);
  const nlohmann::json& element = url["items"][0]["firstParts"][0]["elements"][0];
  EXPECT_EQ(element["isReference"], false);
  EXPECT_EQ(element["text"]["text"], "Bonjour");
  EXPECT_EQ(element["translations"][0]["text"], "Hello");
  ASSERT_EQ(url["allMedia"].size(), 2u);
  EXPECT_EQ(url["allMedia"][0]["path"], "http://cdn.test/c/C0001/r0001005/Q2/p0000007.swf");
  EXPECT_EQ(url["allMedia"][1]["path"], "http://cdn.test/c/C0002/r0000040/Q1/v0000030.avi");

  nlohmann::json unc = Json("resource " + root() + " -d 5 --type 40 --id " +
                            std::to_string(kExercise) + " --path-kind unc --order 3");
  EXPECT_EQ(unc["allMedia"][1]["path"], "\\\\srv\\c\\C0002\\r0000040\\Q3\\v0000030.mpg");

  CliResult human = RunCli("resource " + root() + " -d 5 --type 40 --id 0x20001e");
  EXPECT_NE(human.out.find("\n              text: Bonjour\n"), std::string::npos) << human.out;
  EXPECT_NE(human.out.find("media: picture 0x00100007 in r0001005: "
                           "http://cdn.test/c/C0001/r0001005/Q2/p0000007.swf\n"),
            std::string::npos);

  nlohmann::json raw = Json("resource " + root() + " -d 5 --type 40 --id 0x20001e --no-media");
  EXPECT_EQ(raw["items"][0]["firstParts"][0]["elements"][0],
            nlohmann::json::parse(R"({"isReference":true,"reference":1048583})"));
  EXPECT_EQ(raw["allMedia"][0]["path"], "");
}

TEST_F(ContentCli, ResourceFailuresExitWithOne) {
  nlohmann::json missing = Json("resource " + root() + " -d 5 --type 40 --id 0x20001f", 1);
  EXPECT_EQ(missing["ok"], false);
  EXPECT_EQ(missing["allMedia"], nlohmann::json::array());
  // The type-1005 file read as type 40: its head has no type tag.
  EXPECT_EQ(Json("resource " + root() + " -d 5 --type 40 --id 0x100007", 1)["ok"], false);
  EXPECT_EQ(RunCli("resource " + root() + " -d 9 --type 40 --id 1").exit_code, 1);
  EXPECT_EQ(RunCli("resource " + root() + " -d 5 --type 40 --id 12x").exit_code, 2);
  EXPECT_EQ(RunCli("resource " + root() + " -d 5 --type 41 --id 1").exit_code, 1);
}

TEST_F(ContentCli, MediaAndPathInfo) {
  nlohmann::json found =
      Json("media " + root() + " -d 5 --kind 2 --folder 1005 --resource 0x100007 --path-kind url");
  EXPECT_EQ(found, nlohmann::json::parse(
                       R"({"ok":true,"path":"http://cdn.test/c/C0001/r0001005/Q2/p0000007.swf"})"));
  // Local paths are never answered: asking for one is a usage error, for media as for resources.
  EXPECT_EQ(RunCli("media " + root() +
                   " -d 5 --kind 2 --folder 1005 --resource 0x100007 --path-kind local")
                .exit_code,
            2);
  EXPECT_EQ(
      RunCli("resource " + root() + " -d 5 --type 40 --id 0x20001e --path-kind local").exit_code,
      2);
  EXPECT_EQ(Json("path-info " + root() + " -d 5")["path"], dir.path() + "D005/");
  EXPECT_EQ(Json("path-info " + root() + " -d 77")["path"], dir.path());
}

}  // namespace
}  // namespace lumora::testing
