// `lumora serve ROOT --port 0 --quiet` started as a user starts it, its address read from the
// line it prints first; stopped with SIGTERM.
#pragma once

#include <sys/types.h>

#include <string>

namespace lumora::testing {

class ServeProcess {
 public:
  explicit ServeProcess(const std::string& root);
  ~ServeProcess();
  ServeProcess(const ServeProcess&) = delete;
  ServeProcess& operator=(const ServeProcess&) = delete;

  // The first line the tool printed (waiting up to 30 seconds for it).
  const std::string& line() const { return line_; }
  // The address of `path` ("/api/open") on this server; empty paths when it printed none.
  std::string Url(const std::string& path) const;
  // Sends SIGTERM and waits: the exit code, or -1 when the tool did not exit by itself.
  int Stop();

 private:
  pid_t pid_ = -1;
  int out_ = -1;
  std::string line_;
  std::string base_;  // "http://127.0.0.1:PORT"
};

}  // namespace lumora::testing
