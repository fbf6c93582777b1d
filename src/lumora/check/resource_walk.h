// The resource files of one exercise type below a discipline's Local root, as the checks walk
// them: ".ars" files and their ".arh" twins, in every folder of the root, with what their names
// say about the resource.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora {

struct WalkedResource {
  std::string path;
  std::optional<uint32_t> course;  // from a folder named "C" and four digits
  uint32_t number = 0;             // from the file name "r" and seven digits
  bool twin = false;               // the ".arh" file
};

// Every "r%07d.ars" and "r%07d.arh" file in the folder "r%07d" of `type` in each folder of
// `local_root`, in name order.
std::vector<WalkedResource> WalkResourceFiles(const std::string& local_root, uint32_t type);

}  // namespace lumora
