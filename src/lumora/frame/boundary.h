// Every entry point runs its body through Guarded: whatever the body throws (an allocation
// failure, a file-system error nobody turned into a result), the host gets the entry point's
// failure result and the library stays usable. What was caught is not dropped: the entry point
// (the caller's name, which both our compilers supply) and the error's text go to the internal log
// (when a host installed one) under kBoundaryErrorCode.
#pragma once

#include <lumora/support/internal_log.h>

#include <exception>
#include <string>
#include <utility>

namespace lumora {

// Our own code, beside the numbered reports of the configuration and database layers.
inline constexpr int32_t kBoundaryErrorCode = 990;

// Called from a handler: logs the error being handled. A log that cannot take it is let be.
inline void ReportCaught(const char* where) noexcept {
  try {
    std::string what = "unknown error";
    try {
      throw;
    } catch (const std::exception& error) {
      what = error.what();
    } catch (...) {
    }
    ReportCodeText(kBoundaryErrorCode, std::string(where) + ": " + what);
  } catch (...) {
  }
}

template <typename Result, typename Body>
Result Guarded(Result failure, Body&& body, const char* where = __builtin_FUNCTION()) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    ReportCaught(where);
    return failure;
  }
}

template <typename Body>
void Guarded(Body&& body, const char* where = __builtin_FUNCTION()) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
    ReportCaught(where);
  }
}

}  // namespace lumora
