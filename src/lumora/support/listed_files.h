// Asking whether files exist in folders that do not change meanwhile, many times over: an export
// looks every medium of every resource up under several names in several quality folders, and
// most of the names it tries are not there. While a ListedFiles lives on the calling thread,
// FileListed reads each folder once and answers from its list.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace lumora {

// Whether `path` names a regular file (or a link to one), as FileExists answers; from the
// folder's list while a ListedFiles lives on this thread.
bool FileListed(const std::string& path);

class ListedFiles {
 public:
  ListedFiles();
  ~ListedFiles();
  ListedFiles(const ListedFiles&) = delete;
  ListedFiles& operator=(const ListedFiles&) = delete;

  bool Contains(const std::string& path);

 private:
  struct Folder {
    std::unordered_set<std::string> files;
    // Entries whose kind the list does not tell (links, and file systems that give no kind):
    // asked of the file system when they are looked up.
    std::unordered_set<std::string> unsure;
  };
  const Folder& Listed(const std::string& folder);

  std::unordered_map<std::string, std::unique_ptr<Folder>> folders_;
  ListedFiles* previous_;
};

}  // namespace lumora
