// The publishing pass run over an export tree. For every discipline of the tree's Content.ini
// it loads each resource of one type listed in the discipline's index, resolves its media
// (which also expands every element that only refers to a stored type-1005 resource) and
// writes the result beside the resource file: as ".arh", with its media paths emptied, which
// resource loading prefers over the ".ars"; or as ".aro", which nothing reads. A discipline
// whose Local root lies outside the tree is passed over: the pass writes nothing outside it.
#pragma once

#include <lumora/resources/exercise_resource.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace lumora {

// The types that have a publishing pass, in the order an export runs them.
inline constexpr std::array<uint32_t, 4> kPublishingTypes = {40, 5, 10, 28};

// What the pass needs to know of one type: how to make an empty resource of its class and how
// to empty every media path of such a resource.
struct PublishingClass {
  uint32_t type = 0;
  std::function<std::unique_ptr<ExerciseResource>()> make;
  std::function<void(ExerciseResource&)> clearMediaPaths;
};

// The class of a type listed in kPublishingTypes; nothing for any other number.
std::optional<PublishingClass> PublishingClassOf(uint32_t type);

// Runs the pass of `type` over the tree at `root` (a folder value, ending in the separator).
// Types without a pass publish nothing.
void PublishResources(uint32_t type, const std::string& root, bool clear_paths);

// The pass itself. It stops silently when Content.ini or a discipline's index file cannot be
// read; a resource that cannot be read is skipped, and a derived file that cannot be written
// is left unwritten.
void PublishResources(const PublishingClass& publishing, const std::string& root, bool clear_paths);

}  // namespace lumora
