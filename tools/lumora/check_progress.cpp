#include "check_progress.h"

#include <cstdio>

namespace lumora::cli {

CheckProgressBar::CheckProgressBar(std::vector<std::string> checks)
    : checks_(std::move(checks)), start_(std::chrono::steady_clock::now()) {
  Draw(0);
}

CheckProgressBar::~CheckProgressBar() { std::fputc('\n', stderr); }

void CheckProgressBar::Draw(size_t done) {
  std::string bar;
  for (size_t i = 0; i < checks_.size(); ++i) bar += i < done ? '#' : '-';
  const auto seconds =
      std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start_)
          .count();
  const char* step = done < checks_.size() ? checks_[done].c_str() : "done";
  std::fprintf(stderr, "\rcheck [%s] %zu/%zu  %-14s %lld:%02lld ", bar.c_str(), done,
               checks_.size(), step, static_cast<long long>(seconds / 60),
               static_cast<long long>(seconds % 60));
  std::fflush(stderr);
}

}  // namespace lumora::cli
