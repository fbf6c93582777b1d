#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"

namespace lumora {
namespace {

using testing::RunCli;

TEST(TextCli, CodePageDecodeAndEncodeAreInverse) {
  const std::string cyrillic = "\xCF\xF0\xE8\xE2\xE5\xF2";  // "Привет" in 1251
  auto decoded = RunCli("codepage decode 1251", cyrillic);
  EXPECT_EQ(decoded.exit_code, 0);
  EXPECT_EQ(decoded.out, "Привет");
  auto encoded = RunCli("codepage encode 1251", "Привет");
  EXPECT_EQ(encoded.exit_code, 0);
  EXPECT_EQ(encoded.out, cyrillic);
  EXPECT_EQ(RunCli("codepage encode 1252", "Привет").out, "??????");
}

TEST(TextCli, CodePageRefusesUnknownCodePages) {
  EXPECT_EQ(RunCli("codepage decode 437", "x").exit_code, 2);
  EXPECT_EQ(RunCli("codepage decode western", "x").exit_code, 2);
  EXPECT_EQ(RunCli("codepage", "x").exit_code, 2);
}

TEST(TextCli, LanguagesListsEveryRow) {
  auto result = RunCli("languages --json");
  ASSERT_EQ(result.exit_code, 0);
  auto rows = nlohmann::json::parse(result.out);
  ASSERT_EQ(rows.size(), 66u);
  const nlohmann::json french = {{"number", 17}, {"name", "French"}, {"code", "FRA"},
                                 {"charset", 0}, {"leftToRight", 1}, {"codePage", 1252},
                                 {"langId", 12}};
  EXPECT_EQ(rows[17], french);
  EXPECT_EQ(rows[2]["leftToRight"], 0);

  auto table = RunCli("languages");
  EXPECT_EQ(table.exit_code, 0);
  EXPECT_NE(table.out.find("    17 French           FRA        0   1     1252 0x000C\n"),
            std::string::npos)
      << table.out;
}

}  // namespace
}  // namespace lumora
