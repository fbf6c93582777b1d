// Waiting for a file or folder that another process holds. Only that can be cured by waiting:
// each attempt period retries a held open every few milliseconds, then the user is told
// through Notify, and after the last attempt the open fails. Any other error (no permission, a
// missing folder, a read-only file system) fails at once.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace lumora {

// Process-wide retry settings. The library never changes them; tests shorten them.
struct ShareFileSettings {
  int attempts = 2;
  uint32_t attempt_period_ms = 10000;
  uint32_t wait_ms = 100;
};
ShareFileSettings& ShareFileRetrySettings();

// Whether an open failed only because another process holds a lock on the file.
bool IsHeldElsewhere(int os_error);

// Calls `try_once` (0 on success, else an errno) until it succeeds, fails with an error that
// waiting cannot cure, or the attempts run out; `tell(error)` is called after each attempt
// period that ended held. Answers 0 or the last error.
int RetryWhileHeld(const std::function<int()>& try_once,
                   const std::function<void(int os_error)>& tell);

}  // namespace lumora
