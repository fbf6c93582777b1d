#include <lumora/content/host_progress.h>

namespace lumora {

HostProgress::HostProgress(const ProgressFunction& function)
    : function_(function),
      progress_([this](uint32_t maximum) { maximum_ = maximum; },
                [this](uint32_t position) { Report(position); }) {
  progress_.onStopRequested = [this] { return stopped_.load(); };
}

void HostProgress::Report(uint32_t position) {
  if (function_ && !stopped_ && !function_(position, maximum_)) stopped_ = true;
}

}  // namespace lumora
