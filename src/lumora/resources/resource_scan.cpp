#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace lumora {
namespace {

namespace fs = std::filesystem;

// Names of the entries of `folder` that pass `keep`, sorted; an unreadable folder has none.
template <typename Keep>
std::vector<std::string> SortedNames(const std::string& folder, Keep keep) {
  std::vector<std::string> names;
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    if (keep(*it)) names.push_back(it->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

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
  const auto is_folder = [](const fs::directory_entry& entry) {
    std::error_code ec;
    return entry.is_directory(ec);
  };
  const auto is_resource = [](const fs::directory_entry& entry) {
    return IsResourceFileName(entry.path().filename().string());
  };
  for (const std::string& course : SortedNames(resource_root, is_folder)) {
    const std::string folder =
        resource_root + course + kPathSeparator + NumberedName('r', type) + kPathSeparator;
    for (const std::string& name : SortedNames(folder, is_resource)) {
      found.push_back({folder + name, NumberInName(name)});
    }
  }
  return found;
}

}  // namespace lumora
