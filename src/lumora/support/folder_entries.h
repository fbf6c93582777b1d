// Listing a folder's entries. Reading names straight from the directory stream keeps the cost
// of a folder of thousands of resource files near that of the system calls: an index rebuild
// lists every course folder of every type.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lumora {

struct FolderEntry {
  std::string name;
  // A symbolic link counts as what it points to; an entry can be neither (a pipe, a dangling
  // link).
  bool isFolder = false;
  bool isFile = false;  // a regular file
};

// The entries of `folder` other than "." and "..", sorted by name; nothing when the folder
// cannot be listed.
std::optional<std::vector<FolderEntry>> ListFolder(const std::string& folder);

}  // namespace lumora
