// The check's progress bar on standard error: one line, redrawn in place, with the check that
// runs and the time since the start.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace lumora::cli {

class CheckProgressBar {
 public:
  // `checks` are the names of the checks in the order they run; drawn at 0 at once.
  explicit CheckProgressBar(std::vector<std::string> checks);
  ~CheckProgressBar();
  CheckProgressBar(const CheckProgressBar&) = delete;
  CheckProgressBar& operator=(const CheckProgressBar&) = delete;

  // `done` checks have finished.
  void Draw(size_t done);

 private:
  std::vector<std::string> checks_;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace lumora::cli
