// The check's progress bar on standard error: one line, redrawn in place, moving with the files
// the checks read, with the time since the start.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace lumora::cli {

class CheckProgressBar {
 public:
  // Drawn empty at once.
  CheckProgressBar();
  ~CheckProgressBar();
  CheckProgressBar(const CheckProgressBar&) = delete;
  CheckProgressBar& operator=(const CheckProgressBar&) = delete;

  // The checks expect `maximum` steps in all (files read, and one per check reading few).
  void SetRange(uint32_t maximum);
  // `done` of them are done. The line is redrawn only when what it shows changes, so that a
  // check of many small files spends its time on them, not on the terminal.
  void Draw(uint32_t done);

 private:
  uint32_t maximum_ = 0;
  std::string shown_;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace lumora::cli
