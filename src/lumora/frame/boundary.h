// Every entry point runs its body through Guarded: whatever the body throws (an allocation
// failure, a file-system error nobody turned into a result), the host gets the entry point's
// failure result and the library stays usable.
#pragma once

#include <utility>

namespace lumora {

template <typename Result, typename Body>
Result Guarded(Result failure, Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    return failure;
  }
}

template <typename Body>
void Guarded(Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
  }
}

}  // namespace lumora
