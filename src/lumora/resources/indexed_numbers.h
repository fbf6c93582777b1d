// The resource numbers an index file lists, whatever its form, for the programs that walk a
// discipline's resources (a check, a media verification).
#pragma once

#include <lumora/resources/type_index.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace lumora {

struct IndexedNumbers {
  uint32_t groups = 0;            // groups of a grouped form; 0 for the flat forms
  std::vector<uint32_t> numbers;  // in index order, repeats kept
};

// Empty for a form that lists no resource numbers.
std::optional<IndexedNumbers> NumbersOf(const TypeIndex& index);

}  // namespace lumora
