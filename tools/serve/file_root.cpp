#include "serve/file_root.h"

#include <fcntl.h>
#include <limits.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>

namespace lumora::serve {
namespace {

// Where the open descriptor's file really lies, as the kernel has it.
std::string RealPathOf(int fd) {
  const std::string link = "/proc/self/fd/" + std::to_string(fd);
  char target[PATH_MAX];
  const ssize_t length = ::readlink(link.c_str(), target, sizeof target);
  if (length <= 0 || static_cast<size_t>(length) >= sizeof target) return {};
  return std::string(target, static_cast<size_t>(length));
}

}  // namespace

FileRoot::FileRoot(const std::string& folder) {
  std::unique_ptr<char, decltype(&std::free)> real(::realpath(folder.c_str(), nullptr), &std::free);
  struct stat info;
  if (real && ::stat(real.get(), &info) == 0 && S_ISDIR(info.st_mode)) {
    real_prefix_ = real.get();
    if (real_prefix_.back() != '/') real_prefix_ += '/';
  }
}

std::optional<OpenedFile> FileRoot::Open(std::span<const std::string> segments) const {
  if (real_prefix_.empty() || segments.empty()) return std::nullopt;
  std::string path = real_prefix_;
  for (size_t i = 0; i < segments.size(); ++i) path += (i ? "/" : "") + segments[i];
  // O_NONBLOCK: opening a FIFO must not wait for a writer; it is refused below like any
  // file that is not regular.
  OpenedFile file{UniqueFd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK))};
  struct stat info;
  if (!file.fd.valid() || ::fstat(file.fd.get(), &info) != 0 || !S_ISREG(info.st_mode)) {
    return std::nullopt;
  }
  const std::string real = RealPathOf(file.fd.get());
  if (real.size() <= real_prefix_.size() ||
      real.compare(0, real_prefix_.size(), real_prefix_) != 0) {
    return std::nullopt;
  }
  file.size = static_cast<uint64_t>(info.st_size);
  file.modified = info.st_mtim;
  return file;
}

}  // namespace lumora::serve
