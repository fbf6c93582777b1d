#include <lumora/frame/library_lock.h>

namespace lumora {

LibraryLock& LibraryMutex() {
  static LibraryLock lock;
  return lock;
}

}  // namespace lumora
