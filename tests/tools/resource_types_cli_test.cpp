// `lumora resource` over one stored resource of every exercise type: each decodes, the field that
// only its own class has comes out filled (no type falls to another type's writer), every medium
// it holds reaches the answer's allMedia list, and a type's own "media" field stays its own.
#include <lumora/resources/resource_files.h>
#include <lumora/resources/type_catalog.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <set>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"
#include "frame/content_tree.h"
#include "resources/stored_files.h"

namespace lumora::testing {
namespace {

const std::map<uint32_t, const char*> kOwnField = {
    {1, "secondTexts"},  {2, "words"},          {3, "texts"},           {4, "secondText"},
    {5, "sentences"},    {7, "choices"},        {8, "items"},           {9, "strings"},
    {10, "words"},       {12, "leadingRecord"}, {13, "leadingRecord"},  {14, "thirdEntries"},
    {15, "items"},       {16, "text"},          {17, "secondItems"},    {18, "value"},
    {19, "names"},       {20, "pieces"},        {21, "clues"},          {28, "sentences"},
    {40, "items"},       {1003, "script"},      {1005, "translations"}, {1006, "entries"},
    {1010, "moreTexts"}, {2000, "description"}};

// The types whose resources hold media of their own; the answer's allMedia list must collect them.
const std::set<uint32_t> kWithMedia = {5, 9, 10, 14, 20, 21, 28, 40, 1003, 1005, 1006, 1010, 2000};

TEST(ResourceTypesCli, EveryTypeDecodesWithItsOwnFields) {
  TempDir dir;
  dir.Write("Content.ini", "[001]\r\nDiscipline=5\r\nURL=http://cdn.test/c/\r\n");
  WriteDescriptions(dir.path() + "D005/", {});
  for (const StoredFile& file : EveryStoredForm()) {
    if (!file.resource) continue;
    const std::string path = ResourceFilePath(dir.path() + "D005/", file.type, kStoredResourceId);
    dir.Write(path.substr(dir.path().size()), std::string(file.bytes.begin(), file.bytes.end()));
  }

  for (uint32_t type : kExerciseTypes) {
    SCOPED_TRACE(type);
    const CliResult result =
        RunCli("resource '" + dir.path() + "' -d 5 --type " + std::to_string(type) + " --id " +
               std::to_string(kStoredResourceId) + " --json");
    ASSERT_EQ(result.exit_code, 0) << result.out;
    const nlohmann::json out = nlohmann::json::parse(result.out);
    EXPECT_EQ(out["ok"], true);
    ASSERT_TRUE(out.contains(kOwnField.at(type))) << result.out;
    const nlohmann::json& field = out[kOwnField.at(type)];
    EXPECT_TRUE(field.is_number() || !field.empty()) << result.out;
    const nlohmann::json& all = out["allMedia"];
    EXPECT_EQ(all.empty(), kWithMedia.count(type) == 0) << result.out;
    // Types 9, 1005 and 1006 hold one medium named "media", type 14 a list of them.
    if (type == 9 || type == 1005 || type == 1006 || type == 14) {
      const nlohmann::json own = type == 14 ? out["media"] : nlohmann::json::array({out["media"]});
      ASSERT_FALSE(own.empty()) << result.out;
      for (const nlohmann::json& media : own) {
        ASSERT_TRUE(media.is_object() && media.contains("resource")) << result.out;
        if (media["kind"] != 0) {
          EXPECT_NE(std::find(all.begin(), all.end(), media), all.end()) << result.out;
        }
      }
    }
  }
}

}  // namespace
}  // namespace lumora::testing
