#include "serve/serve_process.h"

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumora::testing {

ServeProcess::ServeProcess(const std::string& root) {
  int pipe_fds[2];
  if (::pipe(pipe_fds) != 0) return;
  pid_ = ::fork();
  if (pid_ == 0) {
    ::dup2(pipe_fds[1], STDOUT_FILENO);
    ::close(pipe_fds[0]);
    ::close(pipe_fds[1]);
    ::execl(LUMORA_CLI, LUMORA_CLI, "serve", root.c_str(), "--port", "0", "--quiet", nullptr);
    ::_exit(127);
  }
  ::close(pipe_fds[1]);
  out_ = pipe_fds[0];
  char c;
  pollfd wait{out_, POLLIN, 0};
  while (::poll(&wait, 1, 30000) == 1 && ::read(out_, &c, 1) == 1 && c != '\n') line_ += c;
  const size_t at = line_.find("http://");
  if (at != std::string::npos) base_ = line_.substr(at, line_.size() - at - 1);
}

ServeProcess::~ServeProcess() { Stop(); }

std::string ServeProcess::Url(const std::string& path) const { return base_ + path; }

int ServeProcess::Stop() {
  if (pid_ <= 0) return -1;
  ::kill(pid_, SIGTERM);
  int status = 0;
  const bool waited = ::waitpid(pid_, &status, 0) == pid_;
  pid_ = -1;
  ::close(out_);
  return waited && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace lumora::testing
