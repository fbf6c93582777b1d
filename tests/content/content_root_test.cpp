// The content face over the sample: one root open at a time, answers equal to the tool's --json
// documents, and failures that say why.
#include <lumora/content.h>
#include <lumora/descriptions.h>
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

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

// A host that renames a word and resorts the glossary finds the word under its new name: the
// searches do not answer from the order they first saw.
TEST_F(ContentRootTest, SearchesFollowAResortedGlossary) {
  auto content = Open();
  ASSERT_TRUE(content);
  content->FindWords(1, "cafe", false, false);  // the index is made here
  ContentRequest request;
  request.disciplineId = 1;
  CGloV6* glossary = lmGetGlossary(&request);
  ASSERT_NE(glossary, nullptr);
  std::vector<uint16_t> renamed;
  for (const GloWritingRecord& record : glossary->writings) {
    if (record.writing.view() == u"le café") renamed.push_back(record.writingId);
  }
  ASSERT_FALSE(renamed.empty());
  for (uint16_t id : renamed) glossary->writings.Find(id)->writing = u"le zebra";
  ASSERT_TRUE(ResortGlossary(*glossary, /*save=*/false).ok());

  const std::pair<const char16_t*, const char*> queries[] = {{u"zebra", "zebra"},
                                                             {u"cafe", "cafe"}};
  for (const auto& [wide, narrow] : queries) {
    WordBuckets buckets;
    glossary->findWords(buckets, 0, wide, 0, 0, false);
    EXPECT_EQ(content->FindWords(1, narrow, false, false).document,
              DescribeWordBuckets(*glossary, buckets));
  }
  EXPECT_NE(content->FindWords(1, "zebra", false, false).document,
            content->FindWords(1, "qqqq", false, false).document);
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
