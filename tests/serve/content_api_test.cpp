// `lumora serve` over sample content answers each API address with the document the tool prints
// with --json for the same question; media gain the address of their file; absent things answer
// 404 and damaged ones 500 with the tool's reason.
#include <lumora/content.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/types/type5.h>
#include <lumora/support/paths.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "fixtures/http_client.h"
#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"
#include "serve/serve_process.h"

namespace lumora::testing {
namespace {

using Json = nlohmann::ordered_json;

constexpr char kScript[] = "<img src=x onerror=alert(1)>";
// Resource numbers the sample leaves free, in the course of the type 5 resources.
constexpr uint32_t kScriptNumber = 900;
constexpr uint32_t kDamagedNumber = 901;

std::string FileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

// The same resource id in another number of its course.
uint32_t Renumbered(uint32_t id, uint32_t number) { return MakeResourceId(CourseOf(id), number); }

class ContentApiTest : public SampleContentSuite {
 protected:
  static void SetUpTestSuite() {
    SampleContentSuite::SetUpTestSuite();
    Status status;
    auto content = ContentRoot::Open(root(), {1, false}, &status);
    ASSERT_TRUE(content) << status.ToString();
    const std::optional<DisciplineSummary> discipline = content->Discipline(1);
    ASSERT_TRUE(discipline);
    for (uint32_t type : discipline->types) {
      const std::vector<uint32_t> ids = content->ResourceIds(1, type);
      if (!ids.empty()) first_ids_.emplace_back(type, ids.front());
    }
    content.reset();
    ASSERT_FALSE(first_ids_.empty());
    WriteScriptAndDamagedResources();
    server_ = std::make_unique<ServeProcess>(root());
    ASSERT_NE(server_->line().find("http://"), std::string::npos) << server_->line();
  }
  static void TearDownTestSuite() {
    server_.reset();
    SampleContentSuite::TearDownTestSuite();
  }

  // A dictation whose title looks like markup, and a copy of a dictation cut short.
  static void WriteScriptAndDamagedResources() {
    const uint32_t dictation = FirstId(5);
    const std::string folder = root() + "D001/";
    const std::string source = ResourceFilePath(folder, 5, dictation);
    Type5Resource resource;
    ASSERT_TRUE(LoadArchiveFile(source, false, resource));
    resource.title = CodePageText(1252, WideText(u"<img src=x onerror=alert(1)>"));
    ASSERT_TRUE(LoadArchiveFile(ResourceFilePath(folder, 5, ScriptId()), true, resource));
    const std::string bytes = FileBytes(source);
    std::ofstream(ResourceFilePath(folder, 5, DamagedId()), std::ios::binary)
        << bytes.substr(0, bytes.size() / 2);
  }

  static uint32_t FirstId(uint32_t type) {
    for (const auto& [t, id] : first_ids_) {
      if (t == type) return id;
    }
    return 0;
  }
  static uint32_t ScriptId() { return Renumbered(FirstId(5), kScriptNumber); }
  static uint32_t DamagedId() { return Renumbered(FirstId(5), kDamagedNumber); }

  static HttpReply Get(const std::string& path) { return Fetch(server_->Url(path)); }
  // The tool's --json output for the same content root.
  static Json Tool(const std::string& args) {
    const size_t command_end = std::min(args.find(' '), args.size());
    const CliResult result = RunCli(args.substr(0, command_end) + " '" + root() + "'" +
                                    args.substr(command_end) + " --json");
    EXPECT_FALSE(result.out.empty()) << args << ": " << result.err;
    return Json::parse(result.out, nullptr, false);
  }

  inline static std::vector<std::pair<uint32_t, uint32_t>> first_ids_;
  inline static std::unique_ptr<ServeProcess> server_;
};

// The document with every "href" taken out, as the tool prints it.
Json WithoutLinks(Json document) {
  if (document.is_object()) {
    document.erase("href");
    for (auto& [key, value] : document.items()) value = WithoutLinks(value);
  } else if (document.is_array()) {
    for (auto& value : document) value = WithoutLinks(value);
  }
  return document;
}

TEST_F(ContentApiTest, EveryDocumentIsTheToolsDocument) {
  std::vector<std::pair<std::string, std::string>> cases = {
      {"/api/open", "open"},
      {"/api/d/1/index", "index -d 1"},
      {"/api/d/1/index/5", "index -d 1 --type 5"},
      {"/api/d/1/glossary/find?q=e", "glossary -d 1 find e"},
      {"/api/d/1/glossary/find?q=ab&prefix=1", "glossary -d 1 find ab --prefix"},
      {"/api/d/1/glossary/word/205", "glossary -d 1 word 205 --path-kind url"},
      {"/api/d/1/glossary/letters", "glossary -d 1 letters"},
      {"/api/d/1/grammar/point/1", "grammar -d 1 point 1"},
      {"/api/d/1/grammar/levels", "grammar -d 1 levels"},
      {"/api/d/1/grammar/categories", "grammar -d 1 categories"},
      {"/api/classification", "classification"},
      {"/api/d/1/packages", "packages -d 1"},
      {"/api/check", "check"},
      {"/api/check?d=1", "check -d 1"},
  };
  for (const auto& [type, id] : first_ids_) {
    cases.emplace_back("/api/d/1/resource/" + std::to_string(type) + "/" + std::to_string(id),
                       "resource -d 1 --type " + std::to_string(type) + " --id " +
                           std::to_string(id) + " --path-kind url");
  }
  for (const auto& [path, args] : cases) {
    SCOPED_TRACE(path);
    const HttpReply reply = Get(path);
    EXPECT_EQ(reply.status, 200) << reply.body;
    EXPECT_EQ(reply.Header("content-type"), "application/json");
    const Json served = Json::parse(reply.body, nullptr, false);
    ASSERT_FALSE(served.is_discarded());
    EXPECT_EQ(WithoutLinks(served), Tool(args));
  }
}

TEST_F(ContentApiTest, ALimitKeepsTheFirstWordsInOrder) {
  const Json all = Json::parse(Get("/api/d/1/glossary/find?q=e").body);
  std::vector<Json> words;
  for (const Json& section : all) {
    for (const Json& word : section["words"]) words.push_back(word);
  }
  ASSERT_GT(words.size(), 3u);
  const Json three = Json::parse(Get("/api/d/1/glossary/find?q=e&limit=3").body);
  std::vector<Json> kept;
  for (const Json& section : three) {
    EXPECT_FALSE(section["words"].empty());
    for (const Json& word : section["words"]) kept.push_back(word);
  }
  EXPECT_EQ(kept, std::vector<Json>(words.begin(), words.begin() + 3));
  EXPECT_EQ(Get("/api/d/1/glossary/find?q=e&limit=0").body, "[]");
}

TEST_F(ContentApiTest, MediaWithAFileGainItsAddress) {
  // A dictation's sentences hold sounds: one file taken away leaves its medium without a path
  // and without an address; the others are served byte for byte at theirs.
  const std::string path = "/api/d/1/resource/5/" + std::to_string(FirstId(5));
  Json document = Json::parse(Get(path).body);
  ASSERT_GE(document["allMedia"].size(), 2u) << document.dump();
  const std::string url_root = "http://content.lumora.test/course/D001/";
  const std::string taken =
      document["allMedia"][0]["path"].get<std::string>().substr(url_root.size());
  const std::string kept_bytes = FileBytes(root() + "D001/" + taken);
  std::filesystem::rename(root() + "D001/" + taken, root() + "taken-away");
  document = Json::parse(Get(path).body);
  std::filesystem::rename(root() + "taken-away", root() + "D001/" + taken);

  size_t linked = 0;
  for (const Json& medium : document["allMedia"]) {
    SCOPED_TRACE(medium.dump());
    const std::string medium_path = medium["path"];
    if (medium_path.empty() || medium_path.find(taken) != std::string::npos) {
      EXPECT_FALSE(medium.contains("href"));
      continue;
    }
    ASSERT_TRUE(medium.contains("href"));
    const std::string below = medium_path.substr(url_root.size());
    EXPECT_EQ(medium["href"], "/media/d/1/" + below);
    const HttpReply file = Get(medium["href"].get<std::string>());
    EXPECT_EQ(file.status, 200);
    EXPECT_EQ(file.body, FileBytes(root() + "D001/" + below));
    ++linked;
  }
  EXPECT_GT(linked, 0u);
  EXPECT_FALSE(kept_bytes.empty());
}

TEST_F(ContentApiTest, ContentTextThatLooksLikeMarkupComesBackAsText) {
  const HttpReply reply = Get("/api/d/1/resource/5/" + std::to_string(ScriptId()));
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.Header("content-type"), "application/json");
  EXPECT_EQ(reply.Header("x-content-type-options"), "nosniff");
  EXPECT_EQ(Json::parse(reply.body)["title"]["text"], kScript);
  EXPECT_NE(reply.body.find(std::string("\"") + kScript + "\""), std::string::npos);
}

TEST_F(ContentApiTest, AbsentThingsAnswer404AndDamagedOnes500WithTheReason) {
  const std::pair<std::string, long> cases[] = {
      {"/api/d/9/index", 404},
      {"/api/d/1/index/6", 404},
      {"/api/d/1/resource/5/" + std::to_string(Renumbered(FirstId(5), 999)), 404},
      {"/api/d/1/resource/6/" + std::to_string(FirstId(5)), 404},
      {"/api/d/9/resource/5/" + std::to_string(FirstId(5)), 404},
      {"/api/d/1/glossary/word/65535", 404},
      {"/api/d/9/glossary/find?q=e", 404},
      {"/api/d/1/grammar/point/99999", 404},
      {"/api/d/9/grammar/levels", 404},
      {"/api/d/9/packages", 404},
      {"/api/check?d=9", 404},
      {"/api/d/1/resource/5/" + std::to_string(DamagedId()), 500},
  };
  for (const auto& [path, status] : cases) {
    SCOPED_TRACE(path);
    const HttpReply reply = Get(path);
    EXPECT_EQ(reply.status, status);
    EXPECT_EQ(reply.Header("content-type"), "application/json");
    const Json body = Json::parse(reply.body, nullptr, false);
    ASSERT_TRUE(body.contains("error")) << reply.body;
  }
  const Json damaged = Json::parse(Get("/api/d/1/resource/5/" + std::to_string(DamagedId())).body);
  const Json tool = Tool("resource -d 1 --type 5 --id " + std::to_string(DamagedId()));
  EXPECT_EQ(damaged["error"], tool["reason"]);
  EXPECT_NE(tool["reason"].get<std::string>().find("r0000901.ars"), std::string::npos) << tool;
}

}  // namespace
}  // namespace lumora::testing
