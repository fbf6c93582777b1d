// The exercise types the library knows, the order in which a discipline loads their index
// files, and the index class of each type.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/type_index.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

inline constexpr std::array<uint32_t, 26> kExerciseTypes = {
    1,  2,  3,  4,  5,  7,  8,  9,  10,   12,   13,   14,   15,
    16, 17, 18, 19, 20, 21, 28, 40, 1003, 1005, 1006, 1010, 2000};

// Index files are loaded in this order when a discipline opens.
inline constexpr std::array<uint32_t, 26> kIndexLoadOrder = {
    1,  2,  3,  4,  5,  7,  8,  9,  10,   12,   13,   14,   15,
    16, 17, 18, 19, 20, 21, 28, 40, 1010, 1006, 1003, 2000, 1005};

bool IsExerciseType(uint32_t type);

// A fresh, empty index object of the type's class; null for a number that is not a type.
std::unique_ptr<TypeIndex> NewTypeIndex(uint32_t type);

// A fresh, empty resource object of the type's class; null for the types whose class is not
// written yet and for numbers that are not types.
std::unique_ptr<ExerciseResource> NewResource(uint32_t type);

// Rescans the type's resource files below resource_root and rewrites its index file in
// index_folder. False when a file could not be read or written, and for the types that have
// no rebuild yet.
bool BuildTypeIndex(uint32_t type, const std::string& resource_root,
                    const std::string& index_folder);

}  // namespace lumora

#pragma GCC visibility pop
