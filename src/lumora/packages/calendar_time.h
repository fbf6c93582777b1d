// The dates of the package catalogue, as its records keep them.
#pragma once

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// Seconds since 1 January 1970, in the 32 bits the package records keep.
using CalendarTime = int32_t;

}  // namespace lumora

#pragma GCC visibility pop
