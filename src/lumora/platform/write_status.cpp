#include <lumora/platform/write_status.h>

#include <cstring>

namespace lumora {
namespace {

thread_local WriteStatus last_failure;

}  // namespace

WriteStatus WriteStatus::Failure(std::string path, std::string what, int os_error) {
  WriteStatus status;
  status.path_ = std::move(path);
  status.what_ = what.empty() ? "failed" : std::move(what);
  status.osError_ = os_error;
  RememberWriteFailure(status);
  return status;
}

std::string WriteStatus::ToString() const {
  if (ok()) return "ok";
  std::string text = path_ + ": " + what_;
  if (osError_ != 0) text += std::string(": ") + std::strerror(osError_);
  return text;
}

void RememberWriteFailure(const WriteStatus& status) {
  if (!status.ok()) last_failure = status;
}

const WriteStatus& LastWriteFailure() { return last_failure; }

void ClearWriteFailure() { last_failure = WriteStatus(); }

}  // namespace lumora
