// Files served below a discipline's root, a static folder and the page: status, type, body,
// validators, byte ranges, HEAD and the headers every answer carries.
#include <gtest/gtest.h>

#include "fixtures/http_client.h"
#include "serve/file_routes.h"
#include "serve/test_server.h"

namespace lumora::testing {
namespace {

class MediaTest : public TestServer {
 protected:
  static std::string MediumUrl() { return Url("/media/d/1/C0001/r0000005/Q1/s0000010.swf"); }
};

TEST_F(MediaTest, AnswersEachPathWithItsStatusTypeAndBytes) {
  const std::string page = "<!doctype html><title>page</title>";
  struct Case {
    const char* path;
    long status;
    const char* type;
    std::string body;
  };
  const Case cases[] = {
      {"/media/d/1/C0001/r0000005/Q1/s0000010.swf", 200, "application/x-shockwave-flash",
       MediumBytes()},
      {"/media/d/0x1/C0001/r0000005/Q1/s0000010.swf", 200, "application/x-shockwave-flash",
       MediumBytes()},
      {"/media/d/1/inside.swf", 200, "application/x-shockwave-flash", MediumBytes()},
      {"/media/d/1/a%20b%25.mp3", 200, "audio/mpeg", "sound"},
      {"/media/d/1/empty.wav", 200, "audio/wav", ""},
      {"/media/d/1/page.html", 200, "text/html; charset=utf-8", "<p>hi</p>"},
      {"/ruffle/core.wasm", 200, "application/wasm", std::string("\0asm", 4)},
      {"/ruffle/ruffle.js", 200, "text/javascript", "export {};"},
      {"/", 200, "text/html; charset=utf-8", page},
      {"/d/1/type/40", 200, "text/html; charset=utf-8", page},
      {"/media/d/1/C0001/r0000005/Q1/nothing.swf", 404, "application/json", ""},
      {"/media/d/2/x.swf", 404, "application/json", ""},
      {"/media/d/3/x.swf", 404, "application/json", ""},
      {"/api/nothing", 404, "application/json", ""},
      {"/favicon.ico", 404, "application/json", ""},
      {"/d/1/robots.txt", 404, "application/json", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.path);
    const HttpReply reply = Fetch(Url(c.path));
    EXPECT_EQ(reply.status, c.status);
    EXPECT_EQ(reply.Header("content-type"), c.type);
    EXPECT_EQ(reply.Header("x-content-type-options"), "nosniff");
    if (c.status == 200) {
      EXPECT_EQ(reply.body, c.body);
    } else {
      EXPECT_TRUE(nlohmann::json::parse(reply.body).contains("error")) << reply.body;
    }
    const std::string policy = reply.Header("content-security-policy");
    if (std::string(c.type).rfind("text/html", 0) == 0) {
      EXPECT_NE(policy.find("default-src 'self'"), std::string::npos) << policy;
      EXPECT_NE(policy.find("'wasm-unsafe-eval'"), std::string::npos) << policy;
      EXPECT_EQ(policy.find("unsafe-inline"), std::string::npos) << policy;
    } else {
      EXPECT_EQ(policy, "");
    }
  }
}

TEST_F(MediaTest, AMediaAddressNamesTheFileItWasMadeFrom) {
  EXPECT_EQ(serve::MediaUrl(1, "a b%.mp3"), "/media/d/1/a%20b%25.mp3");
  EXPECT_EQ(serve::MediaUrl(1, "C0001/r0000005/Q1/s0000010.swf"),
            "/media/d/1/C0001/r0000005/Q1/s0000010.swf");
  EXPECT_EQ(Fetch(Url(serve::MediaUrl(1, "a b%.mp3"))).body, "sound");
}

TEST_F(MediaTest, ACurrentCopyIsNotSentAgainAndAChangedFileIs) {
  const HttpReply first = Fetch(MediumUrl());
  const std::string etag = first.Header("etag");
  ASSERT_FALSE(etag.empty());
  // Answered without closing: the next request of the client reuses the connection.
  EXPECT_NE(first.Header("connection"), "close");
  EXPECT_NE(first.Header("last-modified").find(" GMT"), std::string::npos);
  for (const std::string& tags : {etag, "W/" + etag, "\"other\", " + etag, std::string("*")}) {
    SCOPED_TRACE(tags);
    const HttpReply again = Fetch(MediumUrl(), {"If-None-Match: " + tags});
    EXPECT_EQ(again.status, 304);
    EXPECT_EQ(again.body, "");
    EXPECT_EQ(again.Header("etag"), etag);
  }
  EXPECT_EQ(Fetch(MediumUrl(), {"If-None-Match: \"other\""}).status, 200);

  folder().Write("content/D001/C0001/r0000005/Q1/s0000010.swf", "new bytes");
  const HttpReply changed = Fetch(MediumUrl(), {"If-None-Match: " + etag});
  EXPECT_EQ(changed.status, 200);
  EXPECT_EQ(changed.body, "new bytes");
  EXPECT_NE(changed.Header("etag"), etag);
  folder().Write("content/D001/C0001/r0000005/Q1/s0000010.swf", MediumBytes());
}

TEST_F(MediaTest, AnswersOneByteRangeAndRefusesOnesBeyondTheEnd) {
  struct Case {
    std::string range;
    long status;
    std::string content_range;
    size_t first, length;  // of the medium, for 200 and 206
  };
  const Case cases[] = {
      {"bytes=0-9", 206, "bytes 0-9/1000", 0, 10},
      {"bytes=990-", 206, "bytes 990-999/1000", 990, 10},
      {"bytes=-5", 206, "bytes 995-999/1000", 995, 5},
      {"bytes=-2000", 206, "bytes 0-999/1000", 0, 1000},
      {"bytes=500-5000", 206, "bytes 500-999/1000", 500, 500},
      {"bytes=999-999", 206, "bytes 999-999/1000", 999, 1},
      {"bytes=1000-", 416, "bytes */1000", 0, 0},
      {"bytes=5000-6000", 416, "bytes */1000", 0, 0},
      {"bytes=-0", 416, "bytes */1000", 0, 0},
      {"bytes=99999999999999999999999-", 416, "bytes */1000", 0, 0},
      // Several ranges, a reversed one, another unit or no numbers: the whole file.
      {"bytes=0-1,5-6", 200, "", 0, 1000},
      {"bytes=9-0", 200, "", 0, 1000},
      {"items=0-9", 200, "", 0, 1000},
      {"bytes=a-b", 200, "", 0, 1000},
  };
  const std::string medium = MediumBytes();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.range);
    const HttpReply reply = Fetch(MediumUrl(), {"Range: " + c.range});
    EXPECT_EQ(reply.status, c.status);
    EXPECT_EQ(reply.Header("content-range"), c.content_range);
    if (c.status != 416) {
      EXPECT_EQ(reply.body, medium.substr(c.first, c.length));
    }
  }
  const HttpReply empty = Fetch(Url("/media/d/1/empty.wav"), {"Range: bytes=0-0"});
  EXPECT_EQ(empty.status, 416);
  EXPECT_EQ(empty.Header("content-range"), "bytes */0");
}

TEST_F(MediaTest, ARangeForAnotherVersionGetsTheWholeFile) {
  const std::string etag = Fetch(MediumUrl()).Header("etag");
  EXPECT_EQ(Fetch(MediumUrl(), {"Range: bytes=0-9", "If-Range: " + etag}).status, 206);
  const HttpReply stale = Fetch(MediumUrl(), {"Range: bytes=0-9", "If-Range: \"old\""});
  EXPECT_EQ(stale.status, 200);
  EXPECT_EQ(stale.body.size(), 1000u);
}

TEST_F(MediaTest, HeadSaysWhatGetWouldSendWithoutSendingIt) {
  const HttpReply whole = Fetch(MediumUrl(), {}, "HEAD");
  EXPECT_EQ(whole.status, 200);
  EXPECT_EQ(whole.Header("content-length"), "1000");
  EXPECT_EQ(whole.Header("accept-ranges"), "bytes");
  EXPECT_EQ(whole.body, "");
  const HttpReply part = Fetch(MediumUrl(), {"Range: bytes=10-19"}, "HEAD");
  EXPECT_EQ(part.status, 206);
  EXPECT_EQ(part.Header("content-length"), "10");
  EXPECT_EQ(part.body, "");
}

TEST_F(MediaTest, NoOtherMethodReachesAFile) {
  for (const char* method : {"POST", "PUT", "DELETE", "PATCH"}) {
    SCOPED_TRACE(method);
    const HttpReply reply = Fetch(MediumUrl(), {}, method);
    EXPECT_EQ(reply.status, 405);
    EXPECT_EQ(reply.Header("allow"), "GET, HEAD");
  }
  EXPECT_EQ(folder().Read("content/D001/C0001/r0000005/Q1/s0000010.swf"), MediumBytes());
}

}  // namespace
}  // namespace lumora::testing
