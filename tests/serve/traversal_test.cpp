// Requests that try to leave a root, or that are malformed, get 400 or 404 and never a byte of
// a file outside it. They are sent over a plain socket, exactly as written here.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "fixtures/http_client.h"
#include "serve/test_server.h"

namespace lumora::testing {
namespace {

class TraversalTest : public TestServer {};

TEST_F(TraversalTest, NoSpellingOfAWayOutReadsAnOutsideFile) {
  const char* targets[] = {
      "/media/d/1/../../secret.txt",
      "/media/d/1/../secret-beside.swf",
      "/media/d/1/%2e%2e/%2e%2e/secret.txt",
      "/media/d/1/%2E%2E/%2E%2E/secret.txt",
      "/media/d/1/.%2e/.%2e/secret.txt",
      "/media/d/1/%2e./%2e./secret.txt",
      "/media/d/1/..%2f..%2fsecret.txt",
      "/media/d/1/..%2F..%2Fsecret.txt",
      "/media/d/1/%2e%2e%2f%2e%2e%2fsecret.txt",
      "/media/d/1/%252e%252e/%252e%252e/secret.txt",
      "/media/d/1/%252e%252e%252f%252e%252e%252fsecret.txt",
      "/media/d/1/..%5c..%5csecret.txt",
      "/media/d/1/..\\..\\secret.txt",
      "/media/d/1/%5c..%5c..%5csecret.txt",
      "/media/d/1/%c0%ae%c0%ae/%c0%ae%c0%ae/secret.txt",
      "/media/d/1/C0001/../../../secret.txt",
      "/media/d/1/C0001/%2e%2e/%2e%2e/%2e%2e/secret.txt",
      "/media/d/1/%2fetc%2fpasswd",
      "/media/d/1//etc/passwd",
      "/media/d/1/escape.swf",
      "/media/d/1/beside.swf",
      "/media/d/1/escape_dir/secret.swf",
      "/media/d/1/escape_dir%2fsecret.swf",
      "/media/d/1/inside.swf%00.txt",
      "/media/d/1/..%00/secret.txt",
      "/media/d/1/%00",
      "/media/d/%2e%2e/secret.txt",
      "/media/d/1%2f..%2f../secret.txt",
      "/ruffle/../secret.txt",
      "/ruffle/%2e%2e/secret.txt",
      "/ruffle/escape.js",
      "/ruffle/..%2f..%2fsecret.txt",
      "../secret.txt",
      "secret.txt",
      "http://127.0.0.1/../secret.txt",
  };
  for (const char* target : targets) {
    SCOPED_TRACE(target);
    const HttpReply reply = RawGet(port(), target);
    EXPECT_TRUE(reply.status == 400 || reply.status == 404) << reply.status;
    EXPECT_EQ(reply.body.find(kSecret), std::string::npos);
    EXPECT_EQ(reply.Header("x-content-type-options"), "nosniff");
  }
  // The same client reads a file inside the root, so the refusals above are the server's.
  EXPECT_EQ(RawGet(port(), "/media/d/1/inside.swf").body, MediumBytes());
}

TEST_F(TraversalTest, MalformedPathsAndNonFilesAreRefused) {
  struct Case {
    const char* target;
    long status;
  };
  const Case cases[] = {
      {"/media/d/1/.", 400},
      {"/media/d/1/./inside.swf", 400},
      {"/media/d/1/C0001//r0000005/Q1/s0000010.swf", 400},
      {"/media/d/1/C0001/r0000005/Q1/s0000010.swf/", 400},
      {"/media/d/1/", 400},
      {"/media/d/1/%", 400},
      {"/media/d/1/%zz", 400},
      {"/media/d/1/%2", 400},
      {"/media/d/1/a%0ab.swf", 400},
      {"/media/d/x/inside.swf", 400},
      {"/media/d/-1/inside.swf", 400},
      {"/media/d/4294967297/inside.swf", 400},
      {"/media/d/1", 404},
      {"/media/d/1/folder", 404},
      {"/media/d/1/fifo.swf", 404},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.target);
    EXPECT_EQ(RawGet(port(), c.target).status, c.status);
  }
}

// Connections dropped before, during or after a request, and a request line too long to hold,
// leave the server answering.
TEST_F(TraversalTest, DroppedConnectionsAndHugeRequestsLeaveTheServerAnswering) {
  for (int i = 0; i < 200; ++i) {
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port());
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 && i % 2) {
      const char partial[] = "GET /media/d/1/inside.swf HTTP/1.1\r\nHost: x\r\n";
      ::send(fd, partial, sizeof partial - 1, MSG_NOSIGNAL);
    }
    ::close(fd);
  }
  const HttpReply huge = RawGet(port(), "/media/d/1/" + std::string(200000, 'a'));
  EXPECT_TRUE(huge.status == 0 || huge.status == 414 || huge.status == 431) << huge.status;
  const HttpReply query = Fetch(Url("/api/d/1/glossary/find?q=" + std::string(100000, 'b')));
  EXPECT_TRUE(query.status == 0 || query.status == 414 || query.status == 431) << query.status;
  EXPECT_EQ(Fetch(Url("/media/d/1/inside.swf")).body, MediumBytes());
}

}  // namespace
}  // namespace lumora::testing
