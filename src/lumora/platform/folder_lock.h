// Advisory locks on a folder, which is what keeps a save of several files in that folder from
// meeting a reader or another save: a save holds the folder exclusively from its first check to
// its last rename, readers of a set of tables hold it shared while they read. Held by another
// process, a lock is waited for as a held file is (RetryWhileHeld).
#pragma once

#include <string>

namespace lumora {

class FolderLock {
 public:
  enum class Mode { kShared, kExclusive };

  FolderLock() = default;
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // Waits while another process holds the folder; 0 or the errno that stopped it.
  int Acquire(const std::string& folder, Mode mode);
  // One try, no wait: 0 or the errno (EWOULDBLOCK when held).
  int TryAcquire(const std::string& folder, Mode mode);
  // From exclusive to shared without letting go.
  int Downgrade();
  void Release();
  bool held() const { return fd_ >= 0; }
  // The open folder, for naming files relative to it while the lock is held; -1 otherwise.
  int fd() const { return fd_; }

 private:
  int OpenFolder(const std::string& folder);
  int Lock(const std::string& folder, Mode mode, bool wait_here);

  int fd_ = -1;
};

}  // namespace lumora
