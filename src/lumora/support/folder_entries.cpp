#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

namespace lumora {
namespace {

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

std::optional<std::vector<FolderEntry>> ListFolder(const std::string& folder) {
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

}  // namespace lumora
