#include <lumora/support/folder_entries.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

thread_local ListedFiles* listed = nullptr;

}  // namespace

bool FileListed(const std::string& path) {
  return listed != nullptr ? listed->Contains(path) : FileExists(path);
}

ListedFiles::ListedFiles() : previous_(listed) { listed = this; }

ListedFiles::~ListedFiles() { listed = previous_; }

bool ListedFiles::Contains(const std::string& path) {
  const size_t slash = path.find_last_of(kPathSeparator);
  if (slash == std::string::npos) return FileExists(path);
  return Listed(path.substr(0, slash + 1)).count(path.substr(slash + 1)) != 0;
}

const ListedFiles::Files& ListedFiles::Listed(const std::string& folder) {
  const auto known = folders_.find(folder);
  if (known != folders_.end()) return known->second;
  Files& files = folders_[folder];
  if (const auto entries = ListedFolder(folder)) {
    for (const FolderEntry& entry : *entries) {
      if (entry.isFile) files.insert(entry.name);
    }
  }
  return files;
}

}  // namespace lumora
