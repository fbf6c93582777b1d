// The export's progress bar on standard error: the library sends a range and positions, this
// draws them on one line that it redraws in place, with the step the export is on and the time
// since it started.
#pragma once

#include <lumora/platform/progress.h>

#include <chrono>
#include <cstdint>

namespace lumora::cli {

class ExportProgressBar {
 public:
  // `resources` is the number of resource rows, which the positions below it count.
  explicit ExportProgressBar(uint32_t resources);
  ~ExportProgressBar();
  ExportProgressBar(const ExportProgressBar&) = delete;
  ExportProgressBar& operator=(const ExportProgressBar&) = delete;

  // A progress object whose callbacks draw on this bar.
  Progress Callbacks();

 private:
  void Draw(uint32_t position);
  const char* StepAt(uint32_t position) const;

  uint32_t resources_;
  uint32_t maximum_ = 0;
  bool drawn_ = false;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace lumora::cli
