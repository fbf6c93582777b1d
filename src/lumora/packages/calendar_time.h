// The dates of the package catalogue, as its records keep them.
#pragma once

#include <cstdint>

namespace lumora {

// Seconds since 1 January 1970, in the 32 bits the package records keep.
using CalendarTime = int32_t;

}  // namespace lumora
