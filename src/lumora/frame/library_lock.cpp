#include <lumora/frame/library_lock.h>

namespace lumora {

std::shared_mutex& LibraryMutex() {
  static std::shared_mutex mutex;
  return mutex;
}

}  // namespace lumora
