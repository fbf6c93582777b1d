// The version is said in one place, the CMake project: the library, the tool and the shared
// library's SONAME all follow it.
#include <gtest/gtest.h>

#include <lumora/lumora.h>

#include <filesystem>
#include <string>

#include "fixtures/run_cli.h"

namespace lumora::testing {
namespace {

TEST(Version, LibraryToolAndSonameFollowTheProjectVersion) {
  const std::string version = LUMORA_PROJECT_VERSION;
  EXPECT_EQ(lumora_version(), version);

  const CliResult cli = RunCli("--version");
  EXPECT_EQ(cli.exit_code, 0);
  EXPECT_EQ(cli.out, "lumora " + version + "\n");

  // Before 1.0 the SONAME carries major and minor: "liblumora.so.0.2" for 0.2.x.
  const std::string major_minor = version.substr(0, version.rfind('.'));
  const std::string soname = std::filesystem::path(LUMORA_SHARED_LIBRARY).filename().string();
  EXPECT_EQ(soname, "liblumora.so." + major_minor);
}

}  // namespace
}  // namespace lumora::testing
