// `lumora glossary`, `grammar` and `classification` over content whose tables do not load: they
// say which file, where and why, and fail, rather than answer as if the tables were empty.
#include <lumora/sample/sample_content.h>

#include <gtest/gtest.h>

#include <string>

#include "fixtures/run_cli.h"
#include "fixtures/temp_dir.h"

namespace lumora::testing {
namespace {

class LexiconLoadCli : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    ASSERT_TRUE(sample::WriteSampleContent(dir.path(), {}, &error)) << error;
  }

  TempDir dir;
};

TEST_F(LexiconLoadCli, AGlossaryCutToNothingIsAFailureWithItsReason) {
  dir.Write("D001/C0000/r0001001/t_Glo_FNs.set", "");
  const CliResult letters = RunCli("glossary " + dir.path() + " -d 1 letters --json");
  EXPECT_EQ(letters.exit_code, 1);
  EXPECT_EQ(letters.out, "");
  EXPECT_EQ(letters.err,
            "lumora: D001/C0000/r0001001/t_Glo_FNs.set: at byte 0: the file ends inside its "
            "header (version and record count)\n");
  // The grammar of the same discipline and the glossary of another still answer.
  EXPECT_EQ(RunCli("grammar " + dir.path() + " -d 1 levels").exit_code, 0);
  EXPECT_EQ(RunCli("glossary " + dir.path() + " -d 2 letters").exit_code, 0);
}

TEST_F(LexiconLoadCli, GrammarAndClassificationSayWhyTheyDidNotLoad) {
  std::string points = dir.Read("D001/C0000/r0001002/t_Gr_Points.set");
  points.resize(points.size() - 1);
  dir.Write("D001/C0000/r0001002/t_Gr_Points.set", points);
  const CliResult grammar = RunCli("grammar " + dir.path() + " -d 1 levels");
  EXPECT_EQ(grammar.exit_code, 1);
  EXPECT_EQ(grammar.err,
            "lumora: D001/C0000/r0001002/t_Gr_Points.set: at byte 74: record 3 of 3, which starts "
            "at byte 66, gives a length that runs past the end of the file\n");

  dir.Write("Classes/t_CatGram.set", "");
  const CliResult classification = RunCli("classification " + dir.path() + " --json");
  EXPECT_EQ(classification.exit_code, 1);
  EXPECT_EQ(classification.out, "");
  EXPECT_EQ(classification.err,
            "lumora: Classes/t_CatGram.set: at byte 0: the file ends inside its header (version "
            "and record count)\n");
}

}  // namespace
}  // namespace lumora::testing
