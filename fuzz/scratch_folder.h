// A private temporary folder for the fuzz targets that go through files, removed at exit.
#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace fuzzing {

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = std::string(Base()) + "/lumora-fuzz-XXXXXX";
    if (mkdtemp(pattern.data()) != nullptr) path_ = pattern + "/";
  }
  ~ScratchFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // With a trailing slash; empty when the folder could not be made.
  const std::string& path() const { return path_; }

  // Removes every file the previous input left.
  void Empty() const {
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(path_, ignored)) {
      std::filesystem::remove(entry.path(), ignored);
    }
  }

 private:
  // In memory when the machine offers it: the library flushes every file it saves through to
  // the disk, and on a real disk those flushes cost far more than the code being fuzzed.
  static const char* Base() { return ::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp"; }

  std::string path_;
};

inline void WriteFile(const std::string& path, const uint8_t* data, size_t size) {
  std::ofstream(path, std::ios::binary | std::ios::trunc)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

inline void WriteFile(const std::string& path, const std::string& bytes) {
  WriteFile(path, reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace fuzzing
