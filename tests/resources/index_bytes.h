// Raw bytes of the index file forms, written by hand so that a test can give a sorted flag,
// a key order or a value width that the library's own writers would not produce.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "fixtures/archive_bytes.h"

namespace lumora::testing {

// ResourceGroups: g, the sorted flag and, when g > 0, the keys and one DWordArray per group.
inline Bytes Groups(uint8_t sorted,
                    const std::vector<std::pair<uint8_t, std::vector<uint32_t>>>& groups) {
  Bytes out = Concat({U32(static_cast<uint32_t>(groups.size())), {sorted}});
  if (groups.empty()) return out;
  out = Concat({out, U32(1), U32(static_cast<uint32_t>(groups.size())), U32(0)});
  for (const auto& [key, numbers] : groups) out.push_back(key);
  for (const auto& [key, numbers] : groups) {
    out = Concat({out, U32(4), U32(static_cast<uint32_t>(numbers.size())), U32(0)});
    for (uint32_t n : numbers) out = Concat({out, U32(n)});
  }
  return out;
}

// A DWordArray of resource numbers.
inline Bytes Numbers(const std::vector<uint32_t>& numbers) {
  Bytes out = Concat({U32(4), U32(static_cast<uint32_t>(numbers.size())), U32(0)});
  for (uint32_t n : numbers) out = Concat({out, U32(n)});
  return out;
}

// The usage table after the groups: the numbers, then their values `width` bytes wide.
inline Bytes UsageTable(const std::vector<uint32_t>& keys, uint32_t width,
                        const std::vector<uint32_t>& values) {
  Bytes out =
      Concat({Numbers(keys), U32(width), U32(static_cast<uint32_t>(values.size())), U32(0)});
  for (uint32_t v : values) {
    Bytes le = U32(v);
    out.insert(out.end(), le.begin(), le.begin() + width);
  }
  return out;
}

}  // namespace lumora::testing
