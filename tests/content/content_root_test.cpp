// The content face over the sample: one root open at a time, answers equal to the tool's --json
// documents, and failures that say why.
#include <lumora/content.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"

namespace lumora::testing {
namespace {

class ContentRootTest : public SampleContentSuite {
 protected:
  std::unique_ptr<ContentRoot> Open(OpenOptions options = {}) {
    Status status;
    auto opened = ContentRoot::Open(root(), options, &status);
    EXPECT_TRUE(opened) << status.ToString();
    return opened;
  }
};

// The tool's document for the same question, parsed as the face's documents are kept.
Description Tool(const std::string& args) {
  const CliResult result = RunCli(args + " --json");
  return Description::parse(result.out);
}

TEST_F(ContentRootTest, OneRootIsOpenAtATime) {
  Status status;
  EXPECT_FALSE(ContentRoot::Open(root() + "nowhere/", {}, &status));
  EXPECT_EQ(status.code, StatusCode::kNotFound);

  auto first = Open();
  ASSERT_TRUE(first);
  EXPECT_FALSE(ContentRoot::Open(root(), {}, &status));
  EXPECT_EQ(status.code, StatusCode::kBusy);

  first->Close();
  EXPECT_FALSE(first->open());
  EXPECT_TRUE(first->Disciplines().empty());
  EXPECT_EQ(first->Resource(1, 40, 0x100001).status.code, StatusCode::kNotFound);
  EXPECT_TRUE(Open());
}

TEST_F(ContentRootTest, AnswersAreTheToolsDocuments) {
  auto content = Open();
  ASSERT_TRUE(content);
  const std::string d1 = root() + " -d 1 ";
  EXPECT_EQ(content->DescribeOpen(), Tool("open " + root()));
  EXPECT_EQ(content->Index(1).document, Tool("index " + d1));
  EXPECT_EQ(content->Index(1, 40).document, Tool("index " + d1 + "--type 40"));
  EXPECT_EQ(content->FindWords(1, "cafe", false, false).document,
            Tool("glossary " + d1 + "find cafe"));
  EXPECT_EQ(content->GlossaryWord(1, 12).document, Tool("glossary " + d1 + "word 12"));
  EXPECT_EQ(content->GlossaryLetters(1).document, Tool("glossary " + d1 + "letters"));
  EXPECT_EQ(content->GrammarPoint(1, 3).document, Tool("grammar " + d1 + "point 3"));
  EXPECT_EQ(content->GrammarLevels(1).document, Tool("grammar " + d1 + "levels"));
  EXPECT_EQ(content->GrammarCategories(1).document, Tool("grammar " + d1 + "categories"));
  EXPECT_EQ(content->FindGrammarPoints(1, "e", 9).document,
            Tool("grammar " + d1 + "find e --language 9"));
  EXPECT_EQ(content->Classification().document, Tool("classification " + root()));

  // The first resource of every indexed type, by the ids the index lists.
  for (const DisciplineSummary& d : content->Disciplines()) {
    for (uint32_t type : d.types) {
      const std::vector<uint32_t> ids = content->ResourceIds(d.id, type);
      if (ids.empty()) continue;
      SCOPED_TRACE(std::to_string(d.id) + "/" + std::to_string(type));
      const Answer answer = content->Resource(d.id, type, ids.front());
      EXPECT_TRUE(answer.ok()) << answer.status.ToString();
      EXPECT_EQ(answer.document,
                Tool("resource " + root() + " -d " + std::to_string(d.id) + " --type " +
                     std::to_string(type) + " --id " + std::to_string(ids.front())));
    }
  }
}

TEST_F(ContentRootTest, PackagesNeedTheDatabases) {
  {
    auto content = Open();
    ASSERT_TRUE(content);
    EXPECT_EQ(content->Packages(1).status.code, StatusCode::kNotFound);
  }
  auto content = Open({0, true});
  ASSERT_TRUE(content);
  EXPECT_EQ(content->Packages(1).document, Tool("packages " + root() + " -d 1"));
}

TEST_F(ContentRootTest, FailuresSayWhatIsMissingOrWhy) {
  auto content = Open();
  ASSERT_TRUE(content);
  EXPECT_EQ(content->Resource(7, 40, 0x100001).status.code, StatusCode::kNotFound);
  EXPECT_EQ(content->Resource(1, 6, 0x100001).status.code, StatusCode::kNotFound);
  EXPECT_EQ(content->GlossaryWord(1, 999999).status.code, StatusCode::kNotFound);
  EXPECT_EQ(content->GrammarPoint(1, 999999).status.code, StatusCode::kNotFound);
  EXPECT_EQ(content->Index(1, 6).status.code, StatusCode::kNotFound);
  EXPECT_TRUE(content->ResourceIds(1, 6).empty());
  EXPECT_FALSE(content->MediaPath(1, MediaRef{3, 40, 0xFFFFF}, kPathUrl, 1));

  // A resource file cut short: the status names the file and the byte, and the document is the
  // one the tool prints for it.
  const std::vector<uint32_t> ids = content->ResourceIds(1, 5);
  ASSERT_FALSE(ids.empty());
  const Answer before = content->Resource(1, 5, ids.front());
  ASSERT_TRUE(before.ok());
  char name[64];
  std::snprintf(name, sizeof name, "D001/C%04u/r0000005/r%07u.ars", ids.front() >> 20,
                ids.front() & 0xFFFFF);
  std::filesystem::resize_file(root() + name, 10);
  const Answer cut = content->Resource(1, 5, ids.front());
  EXPECT_EQ(cut.status.code, StatusCode::kUnreadable);
  EXPECT_EQ(cut.status.file, name);
  EXPECT_TRUE(cut.status.byte.has_value());
  EXPECT_EQ(cut.document["ok"], false);
  EXPECT_EQ(cut.document["reason"], cut.status.ToString());
}

}  // namespace
}  // namespace lumora::testing
