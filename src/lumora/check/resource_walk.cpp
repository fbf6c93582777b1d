#include <lumora/check/resource_walk.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cctype>
#include <string_view>

namespace lumora {
namespace {

// `digits` decimal digits after `letter`, then `extension` (which may be empty).
std::optional<uint32_t> NumberIn(std::string_view name, char letter, size_t digits,
                                 std::string_view extension) {
  if (name.size() != 1 + digits + extension.size() || name[0] != letter ||
      name.substr(1 + digits) != extension) {
    return std::nullopt;
  }
  const std::string_view number = name.substr(1, digits);
  if (!std::all_of(number.begin(), number.end(),
                   [](char c) { return std::isdigit(static_cast<unsigned char>(c)); })) {
    return std::nullopt;
  }
  return static_cast<uint32_t>(std::stoul(std::string(number)));
}

}  // namespace

std::vector<WalkedResource> WalkResourceFiles(const std::string& local_root, uint32_t type) {
  std::vector<WalkedResource> found;
  const auto courses = ListFolder(local_root);
  if (!courses) return found;
  const std::string type_folder = NumberedName('r', type);
  for (const FolderEntry& course : *courses) {
    if (!course.isFolder) continue;
    const std::string folder =
        local_root + course.name + kPathSeparator + type_folder + kPathSeparator;
    const auto files = ListFolder(folder);
    if (!files) continue;
    const std::optional<uint32_t> course_number = NumberIn(course.name, 'C', 4, "");
    for (const FolderEntry& file : *files) {
      for (const bool twin : {false, true}) {
        if (const auto number = NumberIn(file.name, 'r', 7, twin ? ".arh" : ".ars")) {
          found.push_back({folder + file.name, course_number, *number, twin});
        }
      }
    }
  }
  return found;
}

}  // namespace lumora
