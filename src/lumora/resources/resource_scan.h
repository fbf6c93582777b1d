// Finding the resource files of one exercise type below a resource root, for index rebuilds.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

struct ScannedResource {
  std::string path;
  uint32_t number;  // what the seven characters of the name read as a decimal number
};

// Every entry named "r" + 7 characters + ".ars" in the folder "r%07d" of `type` inside every
// folder of resource_root, course folders in name order and files in name order. The number is
// read as the C library reads a decimal number: leading blanks and a sign, then digits up to
// the first other character. Entries that are not regular files are listed too; loading them
// fails like any unreadable resource.
std::vector<ScannedResource> ScanResourceFiles(const std::string& resource_root, uint32_t type);

}  // namespace lumora

#pragma GCC visibility pop
