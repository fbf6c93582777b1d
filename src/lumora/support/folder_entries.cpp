#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

namespace lumora {
namespace {

thread_local const FolderListing* shared_listing = nullptr;

struct DirCloser {
  void operator()(DIR* dir) const { ::closedir(dir); }
};

FolderEntry EntryOf(const std::string& folder, const dirent& entry) {
  FolderEntry found{entry.d_name, entry.d_type == DT_DIR, entry.d_type == DT_REG};
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return found;
  struct stat st;
  if (::stat(WithBackslash(folder).append(entry.d_name).c_str(), &st) == 0) {
    found.isFolder = S_ISDIR(st.st_mode);
    found.isFile = S_ISREG(st.st_mode);
  }
  return found;
}

}  // namespace

FolderEntries ListFolder(const std::string& folder) {
  std::unique_ptr<DIR, DirCloser> dir(::opendir(folder.c_str()));
  if (!dir) return std::nullopt;
  std::vector<FolderEntry> entries;
  while (const dirent* entry = ::readdir(dir.get())) {
    const std::string_view name = entry->d_name;
    if (name == "." || name == "..") continue;
    entries.push_back(EntryOf(folder, *entry));
  }
  std::sort(entries.begin(), entries.end(),
            [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
  return entries;
}

const FolderEntries& FolderListing::Add(const std::string& folder) {
  const auto known = folders_.find(folder);
  if (known != folders_.end()) return known->second;
  return folders_[folder] = ListFolder(folder);
}

const FolderEntries* FolderListing::Find(const std::string& folder) const {
  if (const auto known = folders_.find(folder); known != folders_.end()) return &known->second;
  if (folder.size() < 2 || folder.back() != kPathSeparator) return nullptr;
  const std::string_view path = std::string_view(folder).substr(0, folder.size() - 1);
  const auto parent = folders_.find(FolderOf(path));
  if (parent == folders_.end() || !parent->second) return nullptr;
  const std::string_view name = path.substr(parent->first.size());
  const auto& entries = *parent->second;
  const auto entry =
      std::lower_bound(entries.begin(), entries.end(), name,
                       [](const FolderEntry& e, std::string_view n) { return e.name < n; });
  if (entry != entries.end() && entry->name == name && entry->isFolder) return nullptr;
  static const FolderEntries kNotListable;
  return &kNotListable;
}

FolderEntries ListedFolder(const std::string& folder) {
  if (shared_listing != nullptr) {
    if (const FolderEntries* listed = shared_listing->Find(folder)) return *listed;
  }
  return ListFolder(folder);
}

SharedFolderListing::SharedFolderListing(const FolderListing& listing) : previous_(shared_listing) {
  shared_listing = &listing;
}

SharedFolderListing::~SharedFolderListing() { shared_listing = previous_; }

}  // namespace lumora
