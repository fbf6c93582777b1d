#include <lumora/frame/boundary.h>
#include <lumora/support/internal_log.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

std::string EveryLogLine(const std::string& folder) {
  std::string all;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    all.append(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return all;
}

bool EntryPointThatThrows() {
  return Guarded(false, []() -> bool { throw std::runtime_error("table cut short"); });
}

// What an entry point caught reaches the log with the entry point's name, and the host still
// gets the failure result, whatever was thrown.
TEST(Boundary, CaughtErrorsAreLoggedWithTheEntryPoint) {
  testing::TempDir dir;
  InstallLog(dir.path() + "logs", 3);
  EXPECT_FALSE(EntryPointThatThrows());
  Guarded([] { throw 7; });
  RemoveLog();
  const std::string log = EveryLogLine(dir.path() + "logs");
  EXPECT_NE(log.find("2=990 3=\"EntryPointThatThrows: table cut short\""), std::string::npos)
      << log;
  EXPECT_NE(log.find(": unknown error"), std::string::npos) << log;
}

}  // namespace
}  // namespace lumora
