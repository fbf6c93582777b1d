#include <lumora/platform/folder_lock.h>
#include <lumora/platform/held_retry.h>
#include <lumora/platform/notify.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace lumora {
namespace {

int LockOperation(FolderLock::Mode mode) {
  return (mode == FolderLock::Mode::kExclusive ? LOCK_EX : LOCK_SH) | LOCK_NB;
}

}  // namespace

FolderLock::~FolderLock() { Release(); }

int FolderLock::OpenFolder(const std::string& folder) {
  Release();
  fd_ = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return fd_ < 0 ? errno : 0;
}

int FolderLock::Lock(const std::string& folder, Mode mode, bool wait_here) {
  auto once = [this, mode] { return ::flock(fd_, LockOperation(mode)) == 0 ? 0 : errno; };
  auto tell = [&folder](int os_error) {
    Notify(std::string(std::strerror(os_error)) +
           "\nAnother program is using the files of: " + folder);
  };
  const int error = wait_here ? RetryWhileHeld(once, tell) : once();
  if (error != 0) Release();
  return error;
}

int FolderLock::Acquire(const std::string& folder, Mode mode) {
  if (int error = OpenFolder(folder)) return error;
  return Lock(folder, mode, true);
}

int FolderLock::TryAcquire(const std::string& folder, Mode mode) {
  if (int error = OpenFolder(folder)) return error;
  return Lock(folder, mode, false);
}

int FolderLock::Downgrade() {
  if (fd_ < 0) return EBADF;
  return ::flock(fd_, LOCK_SH | LOCK_NB) == 0 ? 0 : errno;
}

void FolderLock::Release() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

}  // namespace lumora
