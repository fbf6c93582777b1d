// A fresh folder below the system's temporary folder, removed with its content at the end: for
// work that must not touch the content tree (index rebuilds to compare or to commit).
#pragma once

#include <string>

namespace lumora {

class ScratchFolder {
 public:
  // Makes <temporary folder>/<prefix>-XXXXXX; path() is empty when that fails.
  explicit ScratchFolder(const char* prefix);
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // With its separator.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace lumora
