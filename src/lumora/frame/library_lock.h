// The one lock of the library's state, for hosts that call in from several threads at once
// through the content face: reads share it, opens and closes hold it alone. The entry points
// themselves take no lock; a host that calls them directly calls from one thread at a time.
#pragma once

#include <shared_mutex>

namespace lumora {

std::shared_mutex& LibraryMutex();

}  // namespace lumora
