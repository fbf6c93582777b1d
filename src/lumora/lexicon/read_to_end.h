// Reads whatever a file-like source still holds into one buffer, in large blocks: set files and
// their indexes are read whole and then parsed from memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumora {

// `source` gives the number of bytes it read, fewer than asked only at its end.
template <typename Source>
void ReadToEnd(Source& source, std::vector<uint8_t>& bytes) {
  constexpr size_t kBlock = 64 * 1024;
  for (;;) {
    const size_t old_size = bytes.size();
    bytes.resize(old_size + kBlock);
    const size_t got = source.Read(bytes.data() + old_size, kBlock);
    bytes.resize(old_size + got);
    if (got < kBlock) return;
  }
}

}  // namespace lumora
