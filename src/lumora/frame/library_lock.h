// The one lock of the library's state, for hosts that call in from several threads at once
// through the content face: reads share it, opens and closes hold it alone. The entry points
// themselves take no lock; a host that calls them directly calls from one thread at a time.
#pragma once

#include <mutex>
#include <shared_mutex>

namespace lumora {

// A shared mutex that lets a waiting writer in before the readers that come after it. glibc's
// std::shared_mutex prefers readers: under a steady stream of reads, a close or an open would
// wait for a moment when no read runs, which may never come. Here a writer takes the turnstile
// first and keeps new readers at it until it holds the mutex. A thread must not take the shared
// lock again while it holds it: a writer waiting in between would wait for it forever.
class LibraryLock {
 public:
  void lock() {
    std::lock_guard turn(turnstile_);
    mutex_.lock();
  }
  void unlock() { mutex_.unlock(); }
  void lock_shared() {
    { std::lock_guard turn(turnstile_); }
    mutex_.lock_shared();
  }
  void unlock_shared() { mutex_.unlock_shared(); }

 private:
  std::mutex turnstile_;
  std::shared_mutex mutex_;
};

LibraryLock& LibraryMutex();

}  // namespace lumora
