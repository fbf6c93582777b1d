// The files that one write made or replaced below some folders: what they held is recorded
// before the write and compared after it. Every file the library writes is replaced whole, so a
// file written again has another inode even when its bytes and time stamp did not change.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace lumora::cli {

class WrittenFiles {
 public:
  // Records the regular files below `folders` (missing folders hold none), leaving out `ignored`.
  WrittenFiles(std::vector<std::string> folders, std::string ignored);

  struct Count {
    uint64_t files = 0;
    uint64_t bytes = 0;
  };
  // The files below the folders now that are new or another file than when recorded.
  Count Since() const;

 private:
  struct State {
    ino_t inode;
    int64_t modified;  // nanoseconds
    bool operator==(const State&) const = default;
  };
  struct Seen {
    std::string path;
    State state;
    uint64_t size;
  };
  std::vector<Seen> Walk() const;

  std::vector<std::string> folders_;
  std::string ignored_;
  std::map<std::string, State> before_;
};

}  // namespace lumora::cli
