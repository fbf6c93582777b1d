#include <lumora/platform/held_retry.h>
#include <lumora/platform/tick.h>

#include <cerrno>

namespace lumora {

ShareFileSettings& ShareFileRetrySettings() {
  static ShareFileSettings settings;
  return settings;
}

bool IsHeldElsewhere(int os_error) { return os_error == EWOULDBLOCK || os_error == EAGAIN; }

int RetryWhileHeld(const std::function<int()>& try_once,
                   const std::function<void(int os_error)>& tell) {
  const ShareFileSettings& settings = ShareFileRetrySettings();
  int error = 0;
  for (int attempt = 0; attempt < settings.attempts; ++attempt) {
    const uint32_t start = TickCount();
    while (true) {
      error = try_once();
      if (error == 0 || !IsHeldElsewhere(error)) return error;
      WaitTicks(settings.wait_ms);
      if (TickCount() - start >= settings.attempt_period_ms) break;
    }
    tell(error);
  }
  return error;
}

}  // namespace lumora
