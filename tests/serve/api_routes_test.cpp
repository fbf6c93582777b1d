// Each API address reaches its document operation with the numbers and parameters it names;
// malformed ones answer 400, absent ones 404, and a failing source 500, each as {"error": ...}.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "fixtures/http_client.h"
#include "serve/test_server.h"

namespace lumora::testing {
namespace {

class ApiRoutesTest : public TestServer {};

TEST_F(ApiRoutesTest, EachAddressAsksItsQuestion) {
  const std::pair<const char*, const char*> cases[] = {
      {"/api/open", "open"},
      {"/api/classification", "classification"},
      {"/api/check", "check all"},
      {"/api/check?d=2", "check 2"},
      {"/api/d/1/index", "index 1 all"},
      {"/api/d/1/index/40", "index 1 40"},
      {"/api/d/0x1/index/0x28", "index 1 40"},
      {"/api/d/1/resource/5/0x100001", "resource 1 5 1048577"},
      {"/api/d/1/resource/5/1048577", "resource 1 5 1048577"},
      {"/api/d/4294967295/resource/0xFFFFFFFF/0", "resource 4294967295 4294967295 0"},
      {"/api/d/1/glossary/find?q=%C3%A9t%C3%A9&prefix=1&limit=5", "find 1 [été] prefix 5"},
      {"/api/d/1/glossary/find?q=a+b%26c&prefix=0", "find 1 [a b&c] anywhere unlimited"},
      {"/api/d/1/glossary/find?limit=0&q=x&q=y", "find 1 [x] anywhere 0"},
      {"/api/d/1/glossary/word/12", "word 1 12"},
      {"/api/d/1/glossary/letters", "letters 1"},
      {"/api/d/1/grammar/point/2", "point 1 2"},
      {"/api/d/1/grammar/levels", "levels 1"},
      {"/api/d/1/grammar/categories", "categories 1"},
      {"/api/d/1/packages", "packages 1"},
  };
  for (const auto& [path, question] : cases) {
    SCOPED_TRACE(path);
    const HttpReply reply = Fetch(Url(path));
    EXPECT_EQ(reply.status, 200);
    EXPECT_EQ(reply.Header("content-type"), "application/json");
    EXPECT_EQ(nlohmann::json::parse(reply.body)["asked"], question);
  }
}

TEST_F(ApiRoutesTest, MalformedAbsentAndFailingQuestionsAnswerAnError) {
  const std::pair<const char*, long> cases[] = {
      {"/api/d/x/index", 400},
      {"/api/d/-1/index", 400},
      {"/api/d/+1/index", 400},
      {"/api/d/4294967296/index", 400},
      {"/api/d/0x100000000/index", 400},
      {"/api/d/0x/index", 400},
      {"/api/d//index", 400},
      {"/api/d/1/index/4%200", 400},
      {"/api/d/1/resource/5/12x", 400},
      {"/api/d/1/resource/5/", 400},
      {"/api/d/1/glossary/find", 400},
      {"/api/d/1/glossary/find?q=", 400},
      {"/api/d/1/glossary/find?q=a&limit=ten", 400},
      {"/api/d/1/glossary/find?q=a&limit=-1", 400},
      {"/api/d/1/glossary/find?q=a&prefix=yes", 400},
      {"/api/d/1/glossary/find?q=%zz", 400},
      {"/api/d/1/glossary/word/le", 400},
      {"/api/check?d=abc", 400},
      {"/api/d/1/resource/5", 404},
      {"/api/d/1/resource/5/1/2", 404},
      {"/api/d/1/resource/5/404", 404},
      {"/api/d/1/glossary", 404},
      {"/api/open/more", 404},
      {"/api/d/1/resource/5/500", 500},
  };
  for (const auto& [path, status] : cases) {
    SCOPED_TRACE(path);
    const HttpReply reply = Fetch(Url(path));
    EXPECT_EQ(reply.status, status);
    EXPECT_EQ(reply.Header("content-type"), "application/json");
    const nlohmann::json body = nlohmann::json::parse(reply.body);
    ASSERT_TRUE(body.contains("error"));
    EXPECT_FALSE(body["error"].get<std::string>().empty());
  }
}

TEST_F(ApiRoutesTest, OnlyGetAndHeadAreAnswered) {
  const HttpReply post = Fetch(Url("/api/open"), {}, "POST");
  EXPECT_EQ(post.status, 405);
  EXPECT_EQ(post.Header("allow"), "GET, HEAD");
  const HttpReply head = Fetch(Url("/api/open"), {}, "HEAD");
  EXPECT_EQ(head.status, 200);
  EXPECT_EQ(head.body, "");
  EXPECT_EQ(head.Header("content-length"), std::to_string(Fetch(Url("/api/open")).body.size()));
}

// A text of the content that looks like markup comes back as that text inside a JSON string,
// in an answer a browser will not take for HTML.
TEST_F(ApiRoutesTest, ContentTextComesBackAsJsonText) {
  const HttpReply reply = Fetch(Url("/api/d/1/resource/5/7"));
  EXPECT_EQ(reply.Header("content-type"), "application/json");
  EXPECT_EQ(reply.Header("x-content-type-options"), "nosniff");
  EXPECT_EQ(nlohmann::json::parse(reply.body)["text"], kScriptText);
  EXPECT_NE(reply.body.find(R"(\"</script>)"), std::string::npos) << reply.body;
}

}  // namespace
}  // namespace lumora::testing
