// How a classification number answers a query number. Numbers are hierarchical in decimal: a
// multiple of 10000 is a top-level class, a multiple of 100 a second-level class, anything else
// a leaf. A query matches candidates of its own block that are not below it.
#pragma once

#include <cstdint>

namespace lumora {

bool classMatches(uint32_t candidate, uint32_t query);

}  // namespace lumora
