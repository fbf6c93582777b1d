#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace lumora::testing {
namespace {

TEST(CrcCliTest, PrintsHexSignedDecimalAndPathPerFile) {
  TempDir dir;
  std::string check = dir.Write("check.txt", "123456789");
  std::string empty = dir.Write("empty.bin", "");
  CliResult result = RunCli("crc '" + check + "' '" + empty + "'");
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(result.out, "89a1897f -1985902209 " + check + "\n00000000 0 " + empty + "\n");
}

TEST(CrcCliTest, JsonGivesPathHexAndSignedValue) {
  TempDir dir;
  std::string check = dir.Write("check.txt", "123456789");
  CliResult result = RunCli("crc --json '" + check + "'");
  ASSERT_EQ(result.exit_code, 0);
  auto expected =
      nlohmann::json::array({{{"path", check}, {"crc", "89a1897f"}, {"signed", -1985902209}}});
  EXPECT_EQ(nlohmann::json::parse(result.out), expected);
}

TEST(CrcCliTest, UnreadableFilesFailAtTheEndAfterTheOthers) {
  TempDir dir;
  std::string check = dir.Write("check.txt", "123456789");
  CliResult result = RunCli("crc '" + dir.path() + "missing' '" + dir.path() + "' '" + check + "'");
  EXPECT_EQ(result.exit_code, 1);
  EXPECT_EQ(result.out, "89a1897f -1985902209 " + check + "\n");
}

}  // namespace
}  // namespace lumora::testing
