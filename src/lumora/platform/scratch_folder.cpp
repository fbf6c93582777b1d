#include <lumora/platform/scratch_folder.h>

#include <stdlib.h>

#include <filesystem>

namespace lumora {

ScratchFolder::ScratchFolder(const char* prefix) {
  std::error_code error;
  std::string pattern =
      (std::filesystem::temp_directory_path(error) / (std::string(prefix) + "-XXXXXX"));
  if (!error && ::mkdtemp(pattern.data()) != nullptr) path_ = pattern + "/";
}

ScratchFolder::~ScratchFolder() {
  std::error_code error;
  if (!path_.empty()) std::filesystem::remove_all(path_, error);
}

}  // namespace lumora
