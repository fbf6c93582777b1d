// The resource files of one discipline: its type-1005 elements and type-40 exercises, and one
// revised exercise stored as an ".arh" twin beside its ".ars" file.
#pragma once

#include <string>

namespace lumora::sample {

// Writes `scale` units of resources of every course below the discipline's Local root `root`.
bool WriteSampleResources(const std::string& root, int scale, std::string* error);

}  // namespace lumora::sample
