// `lumora serve` as a user runs it: it prints where it serves, serves the media of the content
// root, and stops with exit code 0 on SIGTERM.
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fixtures/http_client.h"
#include "fixtures/run_cli.h"
#include "fixtures/sample_suite.h"

namespace lumora::testing {
namespace {

class ServeCliTest : public SampleContentSuite {};

// Starts the tool with its standard output on a pipe; gives the process and the pipe.
pid_t StartServe(const std::string& root, int* out) {
  int pipe_fds[2];
  if (::pipe(pipe_fds) != 0) return -1;
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::dup2(pipe_fds[1], STDOUT_FILENO);
    ::close(pipe_fds[0]);
    ::close(pipe_fds[1]);
    ::execl(LUMORA_CLI, LUMORA_CLI, "serve", root.c_str(), "--port", "0", "--quiet", nullptr);
    ::_exit(127);
  }
  ::close(pipe_fds[1]);
  *out = pipe_fds[0];
  return pid;
}

// The first line the tool prints, waiting up to 30 seconds for it.
std::string FirstLine(int fd) {
  std::string line;
  char c;
  pollfd wait{fd, POLLIN, 0};
  while (::poll(&wait, 1, 30000) == 1 && ::read(fd, &c, 1) == 1 && c != '\n') line += c;
  return line;
}

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
  int out = -1;
  const pid_t pid = StartServe(root(), &out);
  ASSERT_GT(pid, 0);
  const std::string line = FirstLine(out);
  const std::string prefix = "serving " + root() + " at http://127.0.0.1:";
  ASSERT_EQ(line.rfind(prefix, 0), 0u) << line;
  const std::string base = line.substr(line.find("http://"));

  const HttpReply reply = Fetch(base + "media/d/1/" + relative);
  EXPECT_EQ(reply.status, 200);
  EXPECT_EQ(reply.body, medium);
  EXPECT_EQ(reply.Header("content-type"), "application/x-shockwave-flash");
  EXPECT_EQ(Fetch(base + "api/open").status, 501);

  ::kill(pid, SIGTERM);
  int status = 0;
  ASSERT_EQ(::waitpid(pid, &status, 0), pid);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
  ::close(out);
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
