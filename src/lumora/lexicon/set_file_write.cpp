#include <lumora/lexicon/set_file.h>
#include <lumora/lexicon/set_file_write.h>
#include <lumora/platform/tick.h>
#include <lumora/support/paths.h>

#include <unistd.h>

namespace lumora {

bool FolderTakesNewFile(const std::string& path) {
  const std::string folder = FolderOf(path);
  return ::access(folder.empty() ? "." : folder.c_str(), W_OK) == 0;
}

bool RetrySave(const std::function<bool()>& attempt) {
  const SetSaveRetry& retry = SetSaveRetrySettings();
  const uint32_t start = TickCount();
  for (uint32_t attempts = 1;; ++attempts) {
    if (attempt()) return true;
    if (!retry.shouldRetry || !retry.shouldRetry(attempts, start)) return false;
    WaitTicks(retry.pause_ms);
  }
}

}  // namespace lumora
