// The export's progress bar on standard error: the library sends a range and positions, the
// bar draws them on one line that it redraws in place, with the step the export is on and the time
// since it started.
#pragma once

#include <chrono>
#include <cstdint>

namespace lumora::cli {

class ExportProgressBar {
 public:
  // `resources` is the number of resource rows, which the positions below it count; the bar
  // runs from 0 to `maximum` and is drawn at 0 at once.
  ExportProgressBar(uint32_t resources, uint32_t maximum);
  ~ExportProgressBar();
  ExportProgressBar(const ExportProgressBar&) = delete;
  ExportProgressBar& operator=(const ExportProgressBar&) = delete;

  void Draw(uint32_t position);

 private:
  const char* StepAt(uint32_t position) const;

  uint32_t resources_;
  uint32_t maximum_;
  bool drawn_ = false;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace lumora::cli
