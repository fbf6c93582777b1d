// What a save answers: success, or which file failed and why. The library's bool entry points
// reduce it to their documented result; the most recent failure of the calling thread stays
// readable through LastWriteFailure so that a caller can tell a person what went wrong.
#pragma once

#include <string>

namespace lumora {

class WriteStatus {
 public:
  WriteStatus() = default;
  static WriteStatus Failure(std::string path, std::string what, int os_error = 0);

  bool ok() const { return what_.empty(); }
  const std::string& path() const { return path_; }
  int osError() const { return osError_; }
  // "<path>: <what>[: <system's text for the error>]"
  std::string ToString() const;

 private:
  std::string path_;
  std::string what_;
  int osError_ = 0;
};

// Failures only: a success leaves the last failure in place.
void RememberWriteFailure(const WriteStatus& status);
// The calling thread's most recent save failure; ok() when there was none.
const WriteStatus& LastWriteFailure();
void ClearWriteFailure();

}  // namespace lumora
