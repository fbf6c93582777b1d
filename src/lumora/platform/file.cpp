#include <lumora/platform/file.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

namespace lumora {
namespace {

int OpenMode(uint32_t flags) {
  using namespace open_flags;
  int mode = (flags & kReadWrite) ? O_RDWR : (flags & kWrite) ? O_WRONLY : O_RDONLY;
  if (flags & kCreate) mode |= O_CREAT;
  return mode | O_CLOEXEC;
}

int LockMode(uint32_t flags) {
  using namespace open_flags;
  switch (flags & kShareMask) {
    case kShareDenyWrite:
    case kShareDenyRead:
      return LOCK_SH;
    case kShareExclusive:
      return LOCK_EX;
    default:
      return 0;
  }
}

}  // namespace

File::~File() { Close(); }

bool File::Open(const std::string& path, uint32_t flags) {
  Close();
  int fd = ::open(path.c_str(), OpenMode(flags), 0644);
  if (fd < 0) {
    error_ = errno;
    return false;
  }
  struct stat st;
  if (::fstat(fd, &st) != 0 || S_ISDIR(st.st_mode)) {
    error_ = S_ISDIR(st.st_mode) ? EISDIR : errno;
    ::close(fd);
    return false;
  }
  // Lock before truncating so that a file held by someone else is never cut short.
  int lock = LockMode(flags);
  if (lock != 0 && ::flock(fd, lock | LOCK_NB) != 0) {
    error_ = errno;
    ::close(fd);
    return false;
  }
  using namespace open_flags;
  if ((flags & kCreate) && !(flags & kNoTruncate) && ::ftruncate(fd, 0) != 0) {
    error_ = errno;
    ::close(fd);
    return false;
  }
  fd_ = fd;
  error_ = 0;
  position_ = 0;
  regular_ = S_ISREG(st.st_mode);
  writable_ = Writes(flags) || (flags & kCreate) != 0;
  openedSize_ = static_cast<uint64_t>(st.st_size);
  return true;
}

void File::Close() {
  if (fd_ >= 0) {
    ::close(fd_);  // releases the advisory lock with the descriptor
    fd_ = -1;
  }
}

size_t File::Read(void* buffer, size_t n) {
  if (fd_ < 0) return 0;
  auto* out = static_cast<char*>(buffer);
  size_t done = 0;
  while (done < n) {
    ssize_t got = ::read(fd_, out + done, n - done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) error_ = errno;
    if (got <= 0) break;
    done += static_cast<size_t>(got);
    if (regular_ && done < n) break;
  }
  position_ += done;
  return done;
}

bool File::Write(const void* buffer, size_t n) {
  if (fd_ < 0) return false;
  const auto* in = static_cast<const char*>(buffer);
  size_t done = 0;
  while (done < n) {
    ssize_t put = ::write(fd_, in + done, n - done);
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) {
      error_ = put < 0 ? errno : EIO;
      return false;
    }
    done += static_cast<size_t>(put);
    position_ += static_cast<size_t>(put);
  }
  return true;
}

bool File::SeekToEnd() { return SeekResult(::lseek(fd_, 0, SEEK_END)); }

bool File::SeekTo(uint64_t offset) {
  return SeekResult(::lseek(fd_, static_cast<off_t>(offset), SEEK_SET));
}

bool File::SeekResult(int64_t offset) {
  if (fd_ < 0 || offset < 0) return false;
  position_ = static_cast<uint64_t>(offset);
  return true;
}

uint64_t File::Size() const {
  if (fd_ < 0) return 0;
  if (!writable_) return openedSize_;
  struct stat st;
  if (::fstat(fd_, &st) != 0) return 0;
  return static_cast<uint64_t>(st.st_size);
}

WholeFile ReadWholeFile(const std::string& path, uint64_t most_bytes, std::string& bytes) {
  bytes.clear();
  const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) {
    return errno == ENOENT || errno == ENOTDIR ? WholeFile::kMissing : WholeFile::kUnreadable;
  }
  struct stat st;
  WholeFile result = WholeFile::kRead;
  if (::fstat(fd, &st) != 0) {
    result = WholeFile::kUnreadable;
  } else if (!S_ISREG(st.st_mode)) {
    result = WholeFile::kMissing;
  } else if (static_cast<uint64_t>(st.st_size) > most_bytes) {
    result = WholeFile::kTooLarge;
  } else {
    // The bytes it had when it was opened: a file that shrinks meanwhile gives fewer.
    bytes.resize(static_cast<size_t>(st.st_size));
    size_t done = 0;
    while (done < bytes.size()) {
      const ssize_t got = ::read(fd, bytes.data() + done, bytes.size() - done);
      if (got < 0 && errno == EINTR) continue;
      if (got < 0) result = WholeFile::kUnreadable;
      if (got <= 0) break;
      done += static_cast<size_t>(got);
    }
    bytes.resize(done);
  }
  ::close(fd);
  return result;
}

}  // namespace lumora
