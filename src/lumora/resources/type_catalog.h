// The exercise types the library knows, one row each: the number, the display
// name, the resource class, the index class and its rebuild, when a discipline
// loads the index file, and which media operations the class performs.
// Everything that differs per type is looked up here, so that adding a type is
// one row and the files of its class.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/type_index.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace lumora {

// The media operations a type's class performs beyond the base class's "no
// media": bits of ExerciseType::media.
enum MediaOperation : uint8_t {
  kNoMedia = 0,
  kResolvesMedia = 1,  // ResolveMedia fills media paths
  kCopiesMedia = 2,    // CopyMedia copies media into an export
  kVerifiesMedia = 4,  // VerifyMedia reports missing media
};

struct ExerciseType {
  uint32_t number;
  const char* name;  // the display name labels show; null for the types that have none
  // Place in the order in which a discipline loads index files, from 0.
  uint8_t loadRank;
  uint8_t media;  // MediaOperation bits
  std::unique_ptr<ExerciseResource> (*newResource)();
  std::unique_ptr<TypeIndex> (*newIndex)();
  // Rescans the type's resource files below resource_root and rewrites its
  // index file in index_folder; false when a file could not be read or written.
  bool (*buildIndex)(const std::string& resource_root, const std::string& index_folder);
};

inline constexpr size_t kExerciseTypeCount = 26;

// Every row, by ascending number.
std::span<const ExerciseType> ExerciseTypes();
// The row of a type; null for a number that is not a type.
const ExerciseType* FindExerciseType(uint32_t number);

// The numbers of the rows, ascending, and in the order a discipline loads their
// index files.
extern const std::array<uint32_t, kExerciseTypeCount> kExerciseTypes;
extern const std::array<uint32_t, kExerciseTypeCount> kIndexLoadOrder;

bool IsExerciseType(uint32_t type);

// The type's display name, or null for a type that has none (or a number that
// is not a type).
const char* ExerciseDisplayName(uint32_t type);

// A fresh, empty index object of the type's class; null for a number that is
// not a type.
std::unique_ptr<TypeIndex> NewTypeIndex(uint32_t type);

// A fresh, empty resource object of the type's class; null for a number that is
// not a type.
std::unique_ptr<ExerciseResource> NewResource(uint32_t type);

// The type's index rebuild (see ExerciseType::buildIndex); false for a number
// that is not a type.
bool BuildTypeIndex(uint32_t type, const std::string& resource_root,
                    const std::string& index_folder);

}  // namespace lumora
