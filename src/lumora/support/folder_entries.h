// Listing a folder's entries. Reading names straight from the directory stream keeps the cost
// of a folder of thousands of resource files near that of the system calls: an index rebuild
// lists every course folder of every type. Work that lists the same folders again and again
// while nothing changes (a check) can list them once into a FolderListing and share it.
#pragma once

#include <map>
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

using FolderEntries = std::optional<std::vector<FolderEntry>>;

// The entries of `folder` other than "." and "..", sorted by name; nothing when the folder
// cannot be listed.
FolderEntries ListFolder(const std::string& folder);

// Folders listed once. Filled by one thread, then read by any number: nothing changes it once
// it is shared.
class FolderListing {
 public:
  // Lists `folder` (a path ending in the separator) unless it is listed already.
  const FolderEntries& Add(const std::string& folder);
  // The entries of a folder listed here; for a folder whose parent is listed here but does not
  // hold it as a folder, nothing (it cannot be listed); null when the listing cannot say.
  const FolderEntries* Find(const std::string& folder) const;

 private:
  std::map<std::string, FolderEntries> folders_;
};

// ListFolder, answered from the thread's shared listing when that holds the folder.
FolderEntries ListedFolder(const std::string& folder);

// While one lives on the calling thread, ListedFolder answers from `listing`, which must outlive
// it and whose folders must not change meanwhile.
class SharedFolderListing {
 public:
  explicit SharedFolderListing(const FolderListing& listing);
  ~SharedFolderListing();
  SharedFolderListing(const SharedFolderListing&) = delete;
  SharedFolderListing& operator=(const SharedFolderListing&) = delete;

 private:
  const FolderListing* previous_;
};

}  // namespace lumora
