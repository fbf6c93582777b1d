// Asking whether files exist in folders that do not change meanwhile, many times over: an export
// looks every medium of every resource up under several names in several quality folders, and
// most of the names it tries are not there. While a ListedFiles lives on the calling thread,
// FileListed reads each folder once and answers from its list.
#pragma once

#include <functional>
#include <string>
#include <string_view>
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
  // Names are looked up as views into the path asked about, so that a look-up copies nothing.
  struct NameHash {
    using is_transparent = void;
    size_t operator()(std::string_view name) const { return std::hash<std::string_view>{}(name); }
  };
  // The regular files of a folder (nothing for a folder that cannot be listed).
  using Files = std::unordered_set<std::string, NameHash, std::equal_to<>>;
  const Files& Listed(std::string_view folder);

  std::unordered_map<std::string, Files, NameHash, std::equal_to<>> folders_;
  // The folder asked about last: the names tried for one medium all lie in one folder.
  std::string_view last_folder_;
  const Files* last_files_ = nullptr;
  ListedFiles* previous_;
};

}  // namespace lumora
