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

namespace {

// What stands at `path` before it is replaced: nothing, or a regular file with write permission
// whose permission bits the new file keeps.
struct Existing {
  bool replacing = false;
  unsigned mode = 0666;
};

WriteStatus CheckTarget(const std::string& path, Existing* existing) {
  struct stat st;
  if (::stat(path.c_str(), &st) != 0) {
    if (errno == ENOENT) return {};
    return WriteStatus::Failure(path, "cannot be replaced", errno);
  }
  if (!S_ISREG(st.st_mode)) return WriteStatus::Failure(path, "is not a regular file");
  if ((st.st_mode & S_IWUSR) == 0) return WriteStatus::Failure(path, "is read-only");
  *existing = {true, st.st_mode & 07777u};
  return {};
}

}  // namespace

WriteStatus CheckReplaceable(const std::string& path) {
  const std::string folder = FolderPart(path);
  struct stat st;
  if (::stat(folder.empty() ? "." : folder.c_str(), &st) != 0) {
    return WriteStatus::Failure(path, "cannot write into its folder", errno);
  }
  Existing existing;
  return CheckTarget(path, &existing);
}

namespace {

// What went wrong while the body of a staging file was written: 0, or the errno with the file
// to name (the target, or the source of a copy) and what failed.
struct BodyFailure {
  int error = 0;
  const char* what = "cannot write it";
  const std::string* file = nullptr;
};

// Creates StagingPath(path) with the permission bits of what it replaces, lets `write_body`
// fill it, flushes it unless `flush` is false and closes it. A failure removes the staging file
// again.
template <typename WriteBody>
WriteStatus Stage(const std::string& path, const Existing& existing, bool flush,
                  WriteBody&& write_body) {
  const std::string staging = StagingPath(path);
  int fd = -1;
  BodyFailure failure{disk::CreateForWriting(staging, existing.mode, &fd),
                      "cannot create a file beside it"};
  if (failure.error == 0) {
    failure = write_body(fd);
    if (failure.error == 0 && existing.replacing) failure.error = disk::SetMode(fd, existing.mode);
    if (failure.error == 0 && flush && (failure.error = disk::SyncFile(fd)) != 0)
      failure.what = "cannot flush it to disk";
    const int closed = disk::CloseFile(fd);
    if (failure.error == 0 && (failure.error = closed) != 0) failure.what = "cannot close it";
  }
  if (failure.error == 0) return {};
  disk::Remove(staging);
  return WriteStatus::Failure(failure.file ? *failure.file : path, failure.what, failure.error);
}

BodyFailure WriteBytes(int fd, std::string_view bytes) {
  return {disk::WriteAll(fd, bytes.data(), bytes.size())};
}

}  // namespace

WriteStatus StageFile(const std::string& path, std::string_view bytes, bool flush) {
  struct stat old;
  Existing existing;
  if (::stat(path.c_str(), &old) == 0) existing = {true, old.st_mode & 07777u};
  return Stage(path, existing, flush, [&](int fd) { return WriteBytes(fd, bytes); });
}

namespace {

// Checks `path`, has `stage` write its staging file (flushed unless flushing is deferred) and
// renames it into place, holding the folder's lock throughout (taken here unless the caller
// holds it). The lock opens the folder, which is all the check its folder needs.
template <typename StageIt>
WriteStatus Replace(const std::string& path, bool locked_by_caller, StageIt&& stage) {
  const std::string folder = FolderPart(path);
  FolderLock lock;
  if (int error = locked_by_caller ? 0 : lock.Acquire(folder, FolderLock::Mode::kExclusive)) {
    return WriteStatus::Failure(path, "cannot lock its folder", error);
  }
  Existing existing;
  if (WriteStatus check = CheckTarget(path, &existing); !check.ok()) return check;
  const bool flush = !flush_deferred;
  if (WriteStatus staged = stage(existing, flush); !staged.ok()) return staged;
  if (int error = disk::Rename(StagingPath(path), path)) {
    disk::Remove(StagingPath(path));
    return WriteStatus::Failure(path, "cannot rename the new file into place", error);
  }
  if (int error = flush ? disk::SyncFolder(folder) : 0) {
    return WriteStatus::Failure(path, "cannot flush its folder to disk", error);
  }
  return {};
}

// The rest of the open source, a block at a time.
BodyFailure CopyBody(int source_fd, const std::string& source, int fd) {
  static thread_local char block[256 * 1024];
  ssize_t got = 0;
  while ((got = ::read(source_fd, block, sizeof block)) > 0 || (got < 0 && errno == EINTR)) {
    if (got <= 0) continue;
    if (int error = disk::WriteAll(fd, block, static_cast<size_t>(got))) return {error};
  }
  if (got < 0) return {errno, "cannot be read", &source};
  return {};
}

WriteStatus WriteFile(const std::string& path, std::string_view bytes, bool locked_by_caller) {
  return Replace(path, locked_by_caller, [&](const Existing& existing, bool flush) {
    return Stage(path, existing, flush, [&](int fd) { return WriteBytes(fd, bytes); });
  });
}

WriteStatus CopyFile(const std::string& source, const std::string& destination,
                     bool locked_by_caller) {
  const int source_fd = ::open(source.c_str(), O_RDONLY | O_CLOEXEC);
  if (source_fd < 0) return WriteStatus::Failure(source, "cannot be read", errno);
  WriteStatus status =
      Replace(destination, locked_by_caller, [&](const Existing& existing, bool flush) {
        return Stage(destination, existing, flush,
                     [&](int fd) { return CopyBody(source_fd, source, fd); });
      });
  ::close(source_fd);
  return status;
}

}  // namespace

WriteStatus WriteFileAtomically(const std::string& path, std::string_view bytes) {
  return WriteFile(path, bytes, false);
}

WriteStatus CopyFileAtomically(const std::string& source, const std::string& destination) {
  return CopyFile(source, destination, false);
}

WriteStatus WriteFileInLockedFolder(const std::string& path, std::string_view bytes) {
  return WriteFile(path, bytes, true);
}

WriteStatus CopyFileInLockedFolder(const std::string& source, const std::string& destination) {
  return CopyFile(source, destination, true);
}

bool FlushesDeferred() { return flush_deferred; }

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
