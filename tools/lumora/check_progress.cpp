#include "check_progress.h"

#include <algorithm>
#include <cstdio>

namespace lumora::cli {
namespace {

constexpr uint32_t kBarWidth = 30;

}  // namespace

CheckProgressBar::CheckProgressBar() : start_(std::chrono::steady_clock::now()) { Draw(0); }

CheckProgressBar::~CheckProgressBar() { std::fputc('\n', stderr); }

void CheckProgressBar::SetRange(uint32_t maximum) {
  maximum_ = maximum;
  Draw(0);
}

void CheckProgressBar::Draw(uint32_t done) {
  const uint64_t filled =
      maximum_ == 0 ? 0 : uint64_t{std::min(done, maximum_)} * kBarWidth / maximum_;
  const uint64_t percent = maximum_ == 0 ? 0 : uint64_t{std::min(done, maximum_)} * 100 / maximum_;
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start_)
          .count();
  char line[128];
  std::snprintf(line, sizeof line, "\rcheck [%s%s] %3llu%%  %lld:%02lld ",
                std::string(filled, '#').c_str(), std::string(kBarWidth - filled, '-').c_str(),
                static_cast<unsigned long long>(percent), static_cast<long long>(seconds / 60),
                static_cast<long long>(seconds % 60));
  if (shown_ == line) return;
  shown_ = line;
  std::fputs(line, stderr);
  std::fflush(stderr);
}

}  // namespace lumora::cli
