// --log-folder installs the internal log for one command, so that an unreadable configuration
// file leaves its report behind.
#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

TEST(LogFolderCli, UnreadableContentIniIsReportedInTheLogFolder) {
  TempDir dir;
  const std::string logs = dir.path() + "logs";
  CliResult result = RunCli("--log-folder '" + logs + "' disciplines '" + dir.path() + "'");
  EXPECT_NE(result.exit_code, 0);

  std::filesystem::directory_iterator files(logs);
  ASSERT_NE(files, std::filesystem::directory_iterator());
  const std::string name = files->path().filename().string();
  EXPECT_EQ(name.size(), std::string("~YYMMDD.log").size());
  EXPECT_NE(dir.Read("logs/" + name).find(" 0 200004 2=541 3="), std::string::npos);
}

// The log is written from deep inside the library, which cannot complain; a folder it could
// not write into must be refused up front. A path below a regular file is unusable even for
// root.
TEST(LogFolderCli, UnusableFolderIsRefusedWithItsReason) {
  TempDir dir;
  const std::string file = dir.Write("file", "x");
  for (const std::string& folder : {file, file + "/logs", std::string("/dev/null")}) {
    CliResult result = RunCli("--log-folder '" + folder + "' languages");
    EXPECT_EQ(result.exit_code, 1) << folder;
    EXPECT_TRUE(result.out.empty()) << folder;
    EXPECT_EQ(result.err.rfind("lumora: cannot use log folder " + folder + ": ", 0), 0u)
        << result.err;
  }
}

}  // namespace
}  // namespace lumora::testing
