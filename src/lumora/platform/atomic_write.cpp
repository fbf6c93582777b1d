#include <lumora/platform/atomic_write.h>
#include <lumora/platform/disk.h>
#include <lumora/platform/folder_lock.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <utility>

namespace lumora {
namespace {

thread_local bool flush_deferred = false;

std::string FolderPart(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

}  // namespace

std::string StagingPath(const std::string& path) { return path + std::string(kStagingSuffix); }

WriteStatus CheckReplaceable(const std::string& path) {
  const std::string folder = FolderPart(path);
  struct stat st;
  if (::stat(folder.empty() ? "." : folder.c_str(), &st) != 0) {
    return WriteStatus::Failure(path, "cannot write into its folder", errno);
  }
  if (::stat(path.c_str(), &st) != 0) {
    if (errno == ENOENT) return {};
    return WriteStatus::Failure(path, "cannot be replaced", errno);
  }
  if (!S_ISREG(st.st_mode)) return WriteStatus::Failure(path, "is not a regular file");
  if ((st.st_mode & S_IWUSR) == 0) return WriteStatus::Failure(path, "is read-only");
  return {};
}

WriteStatus StageFile(const std::string& path, std::string_view bytes, bool flush) {
  struct stat old;
  const bool replacing = ::stat(path.c_str(), &old) == 0;
  const unsigned mode = replacing ? (old.st_mode & 07777) : 0666;
  const std::string staging = StagingPath(path);
  int fd = -1;
  int error = disk::CreateForWriting(staging, mode, &fd);
  const char* what = "cannot create a file beside it";
  if (error == 0) {
    what = "cannot write it";
    error = disk::WriteAll(fd, bytes.data(), bytes.size());
    if (error == 0 && replacing) error = disk::SetMode(fd, mode);
    if (error == 0 && flush && (error = disk::SyncFile(fd)) != 0) what = "cannot flush it to disk";
    const int closed = disk::CloseFile(fd);
    if (error == 0 && (error = closed) != 0) what = "cannot close it";
  }
  if (error == 0) return {};
  disk::Remove(staging);
  return WriteStatus::Failure(path, what, error);
}

WriteStatus WriteFileAtomically(const std::string& path, std::string_view bytes) {
  const std::string folder = FolderPart(path);
  FolderLock lock;
  if (int error = lock.Acquire(folder, FolderLock::Mode::kExclusive)) {
    return WriteStatus::Failure(path, "cannot lock its folder", error);
  }
  if (WriteStatus check = CheckReplaceable(path); !check.ok()) return check;
  const bool flush = !flush_deferred;
  if (WriteStatus staged = StageFile(path, bytes, flush); !staged.ok()) return staged;
  if (int error = disk::Rename(StagingPath(path), path)) {
    disk::Remove(StagingPath(path));
    return WriteStatus::Failure(path, "cannot rename the new file into place", error);
  }
  if (int error = flush ? disk::SyncFolder(folder) : 0) {
    return WriteStatus::Failure(path, "cannot flush its folder to disk", error);
  }
  return {};
}

WriteStatus CopyFileAtomically(const std::string& source, const std::string& destination) {
  const int fd = ::open(source.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return WriteStatus::Failure(source, "cannot be read", errno);
  std::string bytes;
  char block[64 * 1024];
  ssize_t got;
  while ((got = ::read(fd, block, sizeof block)) > 0 || (got < 0 && errno == EINTR)) {
    if (got > 0) bytes.append(block, static_cast<size_t>(got));
  }
  const int read_error = got < 0 ? errno : 0;
  ::close(fd);
  if (read_error != 0) return WriteStatus::Failure(source, "cannot be read", read_error);
  return WriteFileAtomically(destination, bytes);
}

DeferredFlush::DeferredFlush(std::string folder)
    : folder_(std::move(folder)), previous_(flush_deferred) {
  flush_deferred = true;
}

DeferredFlush::~DeferredFlush() { flush_deferred = previous_; }

WriteStatus DeferredFlush::Finish() {
  if (int error = disk::SyncFileSystem(folder_)) {
    return WriteStatus::Failure(folder_, "cannot flush what was written to disk", error);
  }
  return {};
}

}  // namespace lumora
