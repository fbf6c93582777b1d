#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "fixtures/run_cli.h"

namespace lumora {
namespace {

using testing::CliResult;
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

// The tool reads 64 KiB blocks: these inputs put a character across the first boundary.
constexpr size_t kBlock = 64 * 1024;

TEST(TextCli, CodePageStreamsZeroBytesBlockBoundariesAndLargeInputs) {
  const std::string narrow("a\0\xE9\0z", 5);
  const CliResult decoded = RunCli("codepage decode 1252", narrow);
  EXPECT_EQ(decoded.exit_code, 0);
  EXPECT_EQ(decoded.out, std::string("a\0é\0z", 6));
  EXPECT_EQ(RunCli("codepage encode 1252", decoded.out).out, narrow);

  const std::string ascii(kBlock - 1, 'a');
  EXPECT_EQ(RunCli("codepage encode 1252", ascii + "éz").out, ascii + "\xE9z");
  EXPECT_EQ(RunCli("codepage decode 932", ascii + "\x93\xFAz").out, ascii + "日z");

  std::string every_byte;
  while (every_byte.size() < 3 * 1024 * 1024) every_byte.push_back(char(every_byte.size()));
  const CliResult big = RunCli("codepage decode 1252", every_byte);
  EXPECT_EQ(big.exit_code, 0);
  const CliResult back = RunCli("codepage encode 1252", big.out);
  EXPECT_EQ(back.exit_code, 0);
  EXPECT_TRUE(back.out == every_byte);
}

TEST(TextCli, ReplacedInputExitsWithOneAndSaysHowMany) {
  const CliResult decoded = RunCli("codepage decode 932", "a\x93");
  EXPECT_EQ(decoded.exit_code, 1);
  EXPECT_EQ(decoded.out, "a\uFFFD");
  EXPECT_EQ(decoded.err, "lumora: 1 undecodable byte sequence replaced by U+FFFD\n");

  const CliResult encoded = RunCli("codepage encode 1251", "\xFF Ж 😀");
  EXPECT_EQ(encoded.exit_code, 1);
  EXPECT_EQ(encoded.out, "? \xC6 ?");
  EXPECT_NE(encoded.err.find(": 2 ill-formed or unexpressible characters replaced"),
            std::string::npos)
      << encoded.err;
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
