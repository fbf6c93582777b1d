#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"

namespace lumora {
namespace {

using testing::RunCli;

TEST(LabelCli, PrintsLabelsInUtf8) {
  auto result = RunCli("label 0xA4020500 --json");
  ASSERT_EQ(result.exit_code, 0);
  const nlohmann::json expected = {
      {"code", 0xA4020500u},
      {"technical", "type2.001 - PART5"},
      {"readable", "Word Order n°1 - PART5"},
      {"description", "A4020500: Exercice 2\nNumber: 1,\nColumn: 0, Sentence: 5"},
      {"valid", true}};
  EXPECT_EQ(nlohmann::json::parse(result.out), expected);

  auto text = RunCli("label 3271819264");  // 0xC3040000: PatchWork 4, no part
  EXPECT_EQ(text.exit_code, 0);
  EXPECT_EQ(text.out,
            "technical:   type20.004\n"
            "readable:    PatchWork n°4\n"
            "valid:       no\n"
            "description:\n"
            "C3040000: Not supported\nNot Valid\n");
}

TEST(LabelCli, RefusesCodesThatAreNotNumbers) {
  EXPECT_EQ(RunCli("label 0xA40205001").exit_code, 2);
  EXPECT_EQ(RunCli("label word").exit_code, 2);
  EXPECT_EQ(RunCli("label").exit_code, 2);
}

}  // namespace
}  // namespace lumora
