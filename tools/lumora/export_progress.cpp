#include "export_progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

namespace lumora::cli {
namespace {

constexpr int kBarWidth = 30;

}  // namespace

ExportProgressBar::ExportProgressBar(uint32_t resources, uint32_t maximum)
    : resources_(resources), maximum_(maximum), start_(std::chrono::steady_clock::now()) {
  Draw(0);
}

ExportProgressBar::~ExportProgressBar() {
  if (drawn_) std::fputc('\n', stderr);
}

// After the resources the export sends n+1 (classification and glossary follow), n+5 (the
// grammar follows), n+11 (the diagnosis file follows) and n+16 (done).
const char* ExportProgressBar::StepAt(uint32_t position) const {
  if (position <= resources_) return "resources";
  if (position < resources_ + 5) return "glossary";
  if (position < resources_ + 11) return "grammar";
  if (position < resources_ + 16) return "diagnosis";
  return "done";
}

void ExportProgressBar::Draw(uint32_t position) {
  const uint64_t filled = maximum_ == 0 ? kBarWidth : uint64_t{position} * kBarWidth / maximum_;
  std::string bar(static_cast<size_t>(std::min<uint64_t>(filled, kBarWidth)), '#');
  bar.resize(kBarWidth, '-');
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start_)
          .count();
  const uint32_t done = position < resources_ ? position : resources_;
  std::fprintf(stderr, "\rexport [%s] %u/%u resources  %-9s %lld:%02lld ", bar.c_str(), done,
               resources_, StepAt(position), static_cast<long long>(seconds / 60),
               static_cast<long long>(seconds % 60));
  std::fflush(stderr);
  drawn_ = true;
}

}  // namespace lumora::cli
