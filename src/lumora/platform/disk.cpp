#include <lumora/platform/disk.h>
#include <lumora/platform/fault_injection.h>
#include <lumora/platform/kept_files.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

namespace lumora::disk {

using fault::Step;
using fault::TakeStep;

int CreateForWriting(const std::string& path, unsigned mode, int* fd) {
  return CreateForWritingAt(AT_FDCWD, path, path, mode, fd);
}

int CreateForWritingAt(int folder_fd, const std::string& name, const std::string& path,
                       unsigned mode, int* fd) {
  *fd = -1;
  ForgetKeptFile(path);
  if (int injected = TakeStep(Step::kCreate)) return injected;
  *fd = ::openat(folder_fd, name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC,
                 static_cast<mode_t>(mode));
  return *fd < 0 ? errno : 0;
}

int WriteAll(int fd, const void* bytes, size_t n) {
  if (int injected = TakeStep(Step::kWrite)) return injected;
  const auto* p = static_cast<const char*>(bytes);
  while (n > 0) {
    const ssize_t put = ::write(fd, p, n);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return errno;
    if (put == 0) return EIO;
    p += put;
    n -= static_cast<size_t>(put);
  }
  return 0;
}

int SyncFile(int fd) {
  if (int injected = TakeStep(Step::kSync)) return injected;
  if (!fault::FlushesReachTheDisk()) return 0;
  return ::fsync(fd) == 0 ? 0 : errno;
}

int SyncFiles(const std::vector<std::string>& paths, std::string* failed) {
  std::vector<int> fds;
  int error = 0;
  for (const std::string& path : paths) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
      error = errno;
      *failed = path;
      break;
    }
    fds.push_back(fd);
    if (fault::FlushesReachTheDisk()) ::sync_file_range(fd, 0, 0, SYNC_FILE_RANGE_WRITE);
  }
  for (size_t i = 0; i < fds.size(); ++i) {
    if (error == 0 && (error = SyncFile(fds[i])) != 0) *failed = paths[i];
    ::close(fds[i]);
  }
  return error;
}

int CloseFile(int fd) {
  const int injected = TakeStep(Step::kClose);
  const int closed = ::close(fd) == 0 ? 0 : errno;
  return injected ? injected : closed;
}

int Rename(const std::string& from, const std::string& to) {
  return RenameAt(AT_FDCWD, from, to, from, to);
}

int RenameAt(int folder_fd, const std::string& from_name, const std::string& to_name,
             const std::string& from, const std::string& to) {
  ForgetKeptFile(from);
  ForgetKeptFile(to);
  if (int injected = TakeStep(Step::kRename)) return injected;
  return ::renameat(folder_fd, from_name.c_str(), folder_fd, to_name.c_str()) == 0 ? 0 : errno;
}

int Remove(const std::string& path) {
  ForgetKeptFile(path);
  if (int injected = TakeStep(Step::kRemove)) return injected;
  return ::unlink(path.c_str()) == 0 || errno == ENOENT ? 0 : errno;
}

int SyncFolder(const std::string& folder) {
  if (int injected = TakeStep(Step::kSync)) return injected;
  if (!fault::FlushesReachTheDisk()) return 0;
  const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return errno;
  // Some file systems cannot sync a folder; the rename is as durable as they make it.
  const int result = ::fsync(fd) == 0 || errno == EINVAL ? 0 : errno;
  ::close(fd);
  return result;
}

int SyncFileSystem(const std::string& folder) {
  if (int injected = TakeStep(Step::kSync)) return injected;
  if (!fault::FlushesReachTheDisk()) return 0;
  const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return errno;
  const int result = ::syncfs(fd) == 0 ? 0 : errno;
  ::close(fd);
  return result;
}

int SetMode(int fd, unsigned mode) {
  return ::fchmod(fd, static_cast<mode_t>(mode)) == 0 ? 0 : errno;
}

}  // namespace lumora::disk
