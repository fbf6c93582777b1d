#include <lumora/maintenance.h>
#include <sys/stat.h>

#include <filesystem>

namespace lumora {

namespace fs = std::filesystem;

WrittenFiles::WrittenFiles(std::vector<std::string> folders, std::string ignored)
    : folders_(std::move(folders)), ignored_(std::move(ignored)) {
  for (const Seen& seen : Walk()) before_.emplace(seen.path, seen.state);
}

WrittenFiles::Count WrittenFiles::Since() const {
  Count count;
  for (const Seen& seen : Walk()) {
    const auto before = before_.find(seen.path);
    if (before != before_.end() && before->second == seen.state) continue;
    ++count.files;
    count.bytes += seen.size;
  }
  return count;
}

std::vector<WrittenFiles::Seen> WrittenFiles::Walk() const {
  std::vector<Seen> seen;
  std::error_code error;
  for (const std::string& folder : folders_) {
    for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
      const std::string path = it->path().string();
      struct stat status;
      if (path == ignored_ || ::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        continue;
      }
      const int64_t modified = int64_t{status.st_mtim.tv_sec} * 1000000000 + status.st_mtim.tv_nsec;
      seen.push_back({path, {status.st_ino, modified}, static_cast<uint64_t>(status.st_size)});
    }
    error.clear();
  }
  return seen;
}

}  // namespace lumora
