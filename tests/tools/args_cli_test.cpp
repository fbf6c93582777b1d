// Option values outside the range their help gives are usage errors, refused while the
// arguments are parsed (exit code 2) before anything is opened.
#include <gtest/gtest.h>

#include <string>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"

namespace lumora::testing {
namespace {

class ArgsCli : public SampleContentSuite {};

TEST_F(ArgsCli, ValuesOutsideTheirDocumentedRangeAreUsageErrors) {
  const std::string resource = "resource " + root() + " -d 1 --type 40 --id 2097155";
  const std::string media = "media " + root() + " -d 1 --folder 40 --path-kind url";
  const std::string glossary = "glossary " + root() + " -d 1 ";
  struct Case {
    std::string args;
    int exit_code;
  };
  const Case cases[] = {
      {resource + " --order 0", 2},
      {resource + " --order 99", 2},
      {resource + " --order -1", 2},
      {resource + " --order 3", 0},
      {"resource " + root() + " -d 1 --type 40 --id 0x", 2},
      {media + " --resource 2097155 --kind 0", 2},
      {media + " --resource 2097155 --kind 4", 2},
      {media + " --resource 2097155x --kind 3", 2},
      {media + " --resource 2097155 --kind 3 --order 4", 2},
      {"diagnosis " + root() + " --user 256", 2},
      {glossary + "word 1 --quality 256", 2},
      {glossary + "by-letter --level 1:256", 2},
      {glossary + "by-letter --linked 1,x", 2},
      {"grammar " + root() + " -d 1 find x --language 256", 2},
      {"verify " + root() + " -d 1 --quality 1,4", 2},
      {"packages " + root() + " -d 1 --resources 2,x", 2},
  };
  for (const Case& c : cases) {
    const CliResult result = RunCli(c.args);
    EXPECT_EQ(result.exit_code, c.exit_code) << c.args << "\n" << result.err;
    EXPECT_TRUE(c.exit_code != 2 || result.out.empty()) << c.args;
  }
}

}  // namespace
}  // namespace lumora::testing
