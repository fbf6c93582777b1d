// The host's description of a request, passed by pointer and only read.
#pragma once

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

enum PathKind : uint32_t { kPathLocal = 0, kPathUrl = 1, kPathUnc = 2 };

struct ContentRequest {
  uint32_t host = 0;          // the host's own; never read here
  uint32_t disciplineId = 0;  // key Discipline of the discipline's section
  uint32_t mediaOrder = 0;    // low byte: which quality folder is tried first
  uint32_t pathKind = 0;      // PathKind; other values act as kPathLocal

  uint8_t selector() const { return static_cast<uint8_t>(mediaOrder); }
};

}  // namespace lumora

#pragma GCC visibility pop
