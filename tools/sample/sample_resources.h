// The resource files of one discipline: its type-1005 elements and type-40 exercises, and one
// revised exercise stored as an ".arh" twin beside its ".ars" file.
#pragma once

#include <cstdint>
#include <string>

namespace lumora::sample {

// The exercise that gets a revised twin: the first of course 1.
inline constexpr uint32_t kRevisedCourse = 1;

// Writes `scale` units of resources of every course below the discipline's Local root `root`.
bool WriteSampleResources(const std::string& root, int scale, std::string* error);

}  // namespace lumora::sample
