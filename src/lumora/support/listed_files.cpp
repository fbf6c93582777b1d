#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <dirent.h>

namespace lumora {
namespace {

thread_local ListedFiles* listed = nullptr;

struct DirCloser {
  void operator()(DIR* dir) const { ::closedir(dir); }
};

}  // namespace

bool FileListed(const std::string& path) {
  return listed != nullptr ? listed->Contains(path) : FileExists(path);
}

ListedFiles::ListedFiles() : previous_(listed) { listed = this; }

ListedFiles::~ListedFiles() { listed = previous_; }

bool ListedFiles::Contains(const std::string& path) {
  const size_t slash = path.find_last_of(kPathSeparator);
  if (slash == std::string::npos) return FileExists(path);
  const Folder& folder = Listed(path.substr(0, slash + 1));
  const std::string name = path.substr(slash + 1);
  if (folder.files.count(name) != 0) return true;
  return folder.unsure.count(name) != 0 && FileExists(path);
}

const ListedFiles::Folder& ListedFiles::Listed(const std::string& folder) {
  std::unique_ptr<Folder>& known = folders_[folder];
  if (known) return *known;
  known = std::make_unique<Folder>();
  std::unique_ptr<DIR, DirCloser> dir(::opendir(folder.c_str()));
  if (!dir) return *known;
  while (const dirent* entry = ::readdir(dir.get())) {
    if (entry->d_type == DT_REG) {
      known->files.emplace(entry->d_name);
    } else if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN) {
      known->unsure.emplace(entry->d_name);
    }
  }
  return *known;
}

}  // namespace lumora
