#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <cstdlib>

namespace lumora {
namespace {

bool IsResourceFileName(const std::string& name) {
  return name.size() == 12 && name.front() == 'r' && name.ends_with(".ars");
}

uint32_t NumberInName(const std::string& name) {
  const std::string digits = name.substr(1, 7);
  return static_cast<uint32_t>(std::strtol(digits.c_str(), nullptr, 10));
}

}  // namespace

std::vector<ScannedResource> ScanResourceFiles(const std::string& resource_root, uint32_t type) {
  std::vector<ScannedResource> found;
  const auto courses = ListFolder(resource_root);
  if (!courses) return found;
  const std::string type_folder = NumberedName('r', type);
  for (const FolderEntry& course : *courses) {
    if (!course.isFolder) continue;
    const std::string folder =
        resource_root + course.name + kPathSeparator + type_folder + kPathSeparator;
    const auto files = ListFolder(folder);
    if (!files) continue;
    for (const FolderEntry& file : *files) {
      if (IsResourceFileName(file.name))
        found.push_back({folder + file.name, NumberInName(file.name)});
    }
  }
  return found;
}

}  // namespace lumora
