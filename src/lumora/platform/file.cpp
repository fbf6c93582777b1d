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
  }
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
  }
  return true;
}

bool File::SeekToEnd() { return fd_ >= 0 && ::lseek(fd_, 0, SEEK_END) >= 0; }

bool File::SeekTo(uint64_t offset) {
  return fd_ >= 0 && ::lseek(fd_, static_cast<off_t>(offset), SEEK_SET) >= 0;
}

uint64_t File::Position() const {
  if (fd_ < 0) return 0;
  off_t pos = ::lseek(fd_, 0, SEEK_CUR);
  return pos < 0 ? 0 : static_cast<uint64_t>(pos);
}

uint64_t File::Size() const {
  struct stat st;
  if (fd_ < 0 || ::fstat(fd_, &st) != 0) return 0;
  return static_cast<uint64_t>(st.st_size);
}

}  // namespace lumora
