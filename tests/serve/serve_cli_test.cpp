// `lumora serve` as a user runs it: it prints where it serves, serves the media of the content
// root, and stops with exit code 0 on SIGTERM.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fixtures/http_client.h"
#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"
#include "serve/serve_process.h"

namespace lumora::testing {
namespace {

class ServeCliTest : public SampleContentSuite {};

std::string AMediumBelow(const std::string& folder, std::string* relative) {
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file() && entry.path().extension() == ".swf") {
      *relative = std::filesystem::relative(entry.path(), folder).generic_string();
      std::ifstream in(entry.path(), std::ios::binary);
      std::stringstream bytes;
      bytes << in.rdbuf();
      return bytes.str();
    }
  }
  return {};
}

TEST_F(ServeCliTest, PrintsItsAddressServesAMediumAndStopsOnSigterm) {
  std::string relative;
  const std::string medium = AMediumBelow(root() + "D001", &relative);
  ASSERT_FALSE(relative.empty());
  ServeProcess serve(root());
  const std::string prefix = "serving " + root() + " at http://127.0.0.1:";
  ASSERT_EQ(serve.line().rfind(prefix, 0), 0u) << serve.line();

  const HttpReply reply = Fetch(serve.Url("/media/d/1/" + relative));
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.body, medium);
  EXPECT_EQ(reply.Header("content-type"), "application/x-shockwave-flash");
  EXPECT_EQ(Fetch(serve.Url("/api/open")).status, 200);
  EXPECT_EQ(serve.Stop(), 0);
}

TEST_F(ServeCliTest, RefusesWhatItCannotServe) {
  const CliResult bad_address = RunCli("serve " + root() + " --address nowhere --port 0");
  EXPECT_EQ(bad_address.exit_code, 1);
  EXPECT_NE(bad_address.err.find("nowhere"), std::string::npos) << bad_address.err;
  const CliResult no_content = RunCli("serve " + root() + "missing --port 0");
  EXPECT_EQ(no_content.exit_code, 1);
  EXPECT_NE(no_content.err.find("missing"), std::string::npos) << no_content.err;
}

}  // namespace
}  // namespace lumora::testing
