// The lookup every keyed container of the library shares: bisection when the keys are marked
// ascending, a scan from the first key otherwise. The bisection narrows lo..hi until they are
// neighbours and then tries lo before hi, so with duplicate keys it finds whichever the
// narrowing lands on, while the scan finds the first.
#pragma once

#include <cstdint>
#include <optional>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

template <typename Keys, typename Key>
std::optional<uint32_t> FindKeyIndex(const Keys& keys, uint32_t n, Key key, bool sorted) {
  if (!sorted) {
    for (uint32_t i = 0; i < n; ++i) {
      if (keys[i] == key) return i;
    }
    return std::nullopt;
  }
  if (n == 0) return std::nullopt;
  uint32_t lo = 0, hi = n - 1;
  while (hi - lo > 1) {
    const uint32_t mid = lo + (hi - lo) / 2;
    if (key > keys[mid]) {
      lo = mid;
    } else {
      hi = mid;
    }
  }
  if (keys[lo] == key) return lo;
  if (keys[hi] == key) return hi;
  return std::nullopt;
}

}  // namespace lumora

#pragma GCC visibility pop
