// A folder whose regular files may be served, and nothing outside it. A file is opened first and
// then judged by where the opened file really lies, so a symbolic link or a folder renamed
// between a check and the open cannot lead outside; whatever cannot be judged is refused.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "serve/unique_fd.h"

namespace lumora::serve {

struct OpenedFile {
  UniqueFd fd;
  uint64_t size = 0;
  timespec modified{};
};

class FileRoot {
 public:
  // A folder that does not exist (or cannot be resolved) serves nothing.
  explicit FileRoot(const std::string& folder);

  // The regular file at `segments` below the folder (segments as SplitPath gives them), when it
  // lies below the folder once every link is followed; nullopt otherwise.
  std::optional<OpenedFile> Open(std::span<const std::string> segments) const;

 private:
  // The folder's real path, ending in "/"; empty when it could not be resolved.
  std::string real_prefix_;
};

}  // namespace lumora::serve
