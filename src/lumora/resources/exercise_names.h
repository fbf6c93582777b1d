// The names under which labels show exercise types. Only the types that labels name have one.
#pragma once

#include <cstdint>

namespace lumora {

// The type's display name, or null for a type that has none.
const char* ExerciseDisplayName(uint32_t type);

}  // namespace lumora
