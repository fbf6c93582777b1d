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
  const std::string_view whole(path);
  return Listed(whole.substr(0, slash + 1)).contains(whole.substr(slash + 1));
}

const ListedFiles::Files& ListedFiles::Listed(std::string_view folder) {
  if (last_files_ != nullptr && folder == last_folder_) return *last_files_;
  auto known = folders_.find(folder);
  if (known == folders_.end()) {
    known = folders_.emplace(std::string(folder), Files()).first;
    if (const auto entries = ListedFolder(known->first)) {
      for (const FolderEntry& entry : *entries) {
        if (entry.isFile) known->second.insert(entry.name);
      }
    }
  }
  // The table's keys and values stay where they are while it grows.
  last_folder_ = known->first;
  last_files_ = &known->second;
  return known->second;
}

}  // namespace lumora
