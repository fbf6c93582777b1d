#include <lumora/platform/ado/busy_wait.h>
#include <lumora/platform/held_retry.h>
#include <lumora/platform/notify.h>
#include <lumora/platform/tick.h>

#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>

namespace lumora::ado {
namespace {

// The engine calls this each time it finds the lock taken, `count` being how often it already
// has for this lock; nonzero answers ask it to try again.
int OnBusy(void* file, int count) {
  const ShareFileSettings& settings = ShareFileRetrySettings();
  const uint64_t wait = std::max<uint32_t>(settings.wait_ms, 1);
  const uint64_t period = std::max<uint32_t>(settings.attempt_period_ms, 1);
  const uint64_t waited = static_cast<uint64_t>(count) * wait;
  if (count > 0 && waited / period > (waited - wait) / period) {
    Notify(std::string(std::strerror(EWOULDBLOCK)) +
           "\nAnother program is using the files of: " + *static_cast<const std::string*>(file));
  }
  if (waited / period >= static_cast<uint64_t>(std::max(settings.attempts, 0))) return 0;
  WaitTicks(static_cast<uint32_t>(wait));
  return 1;
}

}  // namespace

void WaitWhileLockedElsewhere(sqlite3* db, const std::string& file) {
  sqlite3_busy_handler(db, OnBusy, const_cast<std::string*>(&file));
}

}  // namespace lumora::ado
