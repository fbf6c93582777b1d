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

}  // namespace

std::string FolderPart(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

std::string StagingPath(const std::string& path) { return path + std::string(kStagingSuffix); }

namespace {

// What stands at `path` before it is replaced: nothing, or a regular file with write permission
// whose permission bits the new file keeps.
struct Existing {
  bool replacing = false;
  unsigned mode = 0666;
};

// A file to replace. The system calls name it relative to its open folder when there is one,
// which spares them walking the whole path for every file.
struct Target {
  const std::string& path;
  int folder_fd = AT_FDCWD;
  std::string name;  // the last part of `path` below folder_fd; the whole path with AT_FDCWD

  std::string staging_name() const { return name + std::string(kStagingSuffix); }
};

WriteStatus CheckTarget(const Target& target, Existing* existing) {
  const std::string& path = target.path;
  struct stat st;
  if (::fstatat(target.folder_fd, target.name.c_str(), &st, 0) != 0) {
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
  return CheckTarget({path, AT_FDCWD, path}, &existing);
}

namespace {

// What went wrong while the body of a staging file was written: 0, or the errno with the file
// to name (the target, or the source of a copy) and what failed.
struct BodyFailure {
  int error = 0;
  const char* what = "cannot write it";
  const std::string* file = nullptr;
};

// Creates the target's staging file with the permission bits of what it replaces, lets
// `write_body` fill it, flushes it unless `flush` is false and closes it. A failure removes the
// staging file again.
template <typename WriteBody>
WriteStatus Stage(const Target& target, const Existing& existing, bool flush,
                  WriteBody&& write_body) {
  const std::string& path = target.path;
  const std::string staging = StagingPath(path);
  int fd = -1;
  BodyFailure failure{disk::CreateForWritingAt(target.folder_fd, target.staging_name(), staging,
                                               existing.mode, &fd),
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
  return Stage({path, AT_FDCWD, path}, existing, flush,
               [&](int fd) { return WriteBytes(fd, bytes); });
}

namespace {

// Checks `path`, has `stage` write its staging file (flushed unless flushing is deferred) and
// renames it into place, holding the folder's lock throughout: `held`, the caller's, or one taken
// here. The lock opens the folder, which is all the check its folder needs, and the file is
// named relative to it.
template <typename StageIt>
WriteStatus Replace(const std::string& path, const FolderLock* held, StageIt&& stage) {
  const std::string folder = FolderPart(path);
  FolderLock own;
  if (held == nullptr) {
    if (int error = own.Acquire(folder, FolderLock::Mode::kExclusive)) {
      return WriteStatus::Failure(path, "cannot lock its folder", error);
    }
    held = &own;
  }
  const Target target{path, held->fd(), path.substr(folder.size())};
  Existing existing;
  if (WriteStatus check = CheckTarget(target, &existing); !check.ok()) return check;
  // A deferred flush still flushes the bytes of a file that replaces another before the rename:
  // after a power loss the target then holds the old bytes or the new ones, never an empty
  // file where a whole one was. A new file may be lost or empty then, as nothing was there.
  const bool flush = !flush_deferred;
  if (WriteStatus staged = stage(target, existing, flush || existing.replacing); !staged.ok())
    return staged;
  if (int error = disk::RenameAt(target.folder_fd, target.staging_name(), target.name,
                                 StagingPath(path), path)) {
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

WriteStatus WriteFile(const std::string& path, std::string_view bytes, const FolderLock* held) {
  return Replace(path, held, [&](const Target& target, const Existing& existing, bool flush) {
    return Stage(target, existing, flush, [&](int fd) { return WriteBytes(fd, bytes); });
  });
}

WriteStatus CopyFile(const std::string& source, const std::string& destination,
                     const FolderLock* held) {
  const int source_fd = ::open(source.c_str(), O_RDONLY | O_CLOEXEC);
  if (source_fd < 0) return WriteStatus::Failure(source, "cannot be read", errno);
  WriteStatus status =
      Replace(destination, held, [&](const Target& target, const Existing& existing, bool flush) {
        return Stage(target, existing, flush,
                     [&](int fd) { return CopyBody(source_fd, source, fd); });
      });
  ::close(source_fd);
  return status;
}

}  // namespace

WriteStatus WriteFileAtomically(const std::string& path, std::string_view bytes) {
  return WriteFile(path, bytes, nullptr);
}

WriteStatus CopyFileAtomically(const std::string& source, const std::string& destination) {
  return CopyFile(source, destination, nullptr);
}

WriteStatus WriteFileInLockedFolder(const FolderLock& lock, const std::string& path,
                                    std::string_view bytes) {
  return WriteFile(path, bytes, &lock);
}

WriteStatus CopyFileInLockedFolder(const FolderLock& lock, const std::string& source,
                                   const std::string& destination) {
  return CopyFile(source, destination, &lock);
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
