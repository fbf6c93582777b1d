#include <lumora/platform/atomic_write.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <atomic>
#include <cerrno>

namespace lumora {
namespace {

// A name nobody else uses at the same moment: the process id keeps processes apart, the
// counter keeps threads of one process apart; O_EXCL settles what is left.
std::string TemporaryNameFor(const std::string& path) {
  static std::atomic<unsigned> counter{0};
  return path + ".tmp" + std::to_string(::getpid()) + "-" + std::to_string(counter++);
}

int CreateTemporary(const std::string& path, mode_t mode, std::string* name) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    *name = TemporaryNameFor(path);
    int fd = ::open(name->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

bool WriteAll(int fd, const std::string& bytes) {
  size_t done = 0;
  while (done < bytes.size()) {
    ssize_t put = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (put < 0 && errno == EINTR) continue;
    if (put <= 0) return false;
    done += static_cast<size_t>(put);
  }
  return true;
}

}  // namespace

bool WriteFileAtomically(const std::string& path, const std::string& bytes) {
  struct stat old;
  bool replacing = ::stat(path.c_str(), &old) == 0;
  // A new file gets the usual 0666 less the umask; a replaced one keeps its exact bits, which
  // the umask applied at creation might have cut, hence the fchmod below.
  mode_t mode = replacing ? (old.st_mode & 07777) : 0666;
  std::string temporary;
  int fd = CreateTemporary(path, mode, &temporary);
  if (fd < 0) return false;
  bool ok = WriteAll(fd, bytes) && (!replacing || ::fchmod(fd, mode) == 0) && ::fsync(fd) == 0;
  ok = (::close(fd) == 0) && ok;
  ok = ok && ::rename(temporary.c_str(), path.c_str()) == 0;
  if (!ok) ::unlink(temporary.c_str());
  return ok;
}

}  // namespace lumora
