// The library's Progress over a host's ProgressFunction: what the operation reports goes to the
// host as (done, total), and a false answer becomes the stop the operation asks for.
#pragma once

#include <lumora/content.h>
#include <lumora/platform/progress.h>

#include <atomic>
#include <cstdint>

namespace lumora {

class HostProgress {
 public:
  explicit HostProgress(const ProgressFunction& function);
  HostProgress(const HostProgress&) = delete;
  HostProgress& operator=(const HostProgress&) = delete;

  const Progress* progress() const { return &progress_; }
  // The range the operation set; 0 before it set one.
  uint32_t maximum() const { return maximum_; }
  bool stopped() const { return stopped_; }

 private:
  void Report(uint32_t position);

  const ProgressFunction& function_;
  std::atomic<uint32_t> maximum_ = 0;
  std::atomic<bool> stopped_ = false;
  Progress progress_;
};

}  // namespace lumora
