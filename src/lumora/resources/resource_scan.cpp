#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace lumora {
namespace {

bool IsResourceFileName(const std::string& name, std::string_view extension) {
  return name.size() == 12 && name.front() == 'r' && name.ends_with(extension);
}

bool IsTypeFolderName(const std::string& name) { return name.size() == 8 && name[0] == 'r'; }

uint32_t NumberInName(const std::string& name) {
  const std::string digits = name.substr(1, 7);
  return static_cast<uint32_t>(std::strtol(digits.c_str(), nullptr, 10));
}

}  // namespace

std::optional<uint32_t> CourseNumberOf(std::string_view folder_name) {
  if (folder_name.size() != 5 || folder_name[0] != 'C' ||
      !std::all_of(folder_name.begin() + 1, folder_name.end(),
                   [](char c) { return std::isdigit(static_cast<unsigned char>(c)); })) {
    return std::nullopt;
  }
  return static_cast<uint32_t>(std::stoul(std::string(folder_name.substr(1))));
}

std::vector<ScannedResource> ScanResourceFiles(const std::string& resource_root, uint32_t type,
                                               ScanOptions options) {
  std::vector<ScannedResource> found;
  const auto courses = ListedFolder(resource_root);
  if (!courses) return found;
  const std::string type_folder = NumberedName('r', type);
  for (const FolderEntry& course : *courses) {
    if (!course.isFolder) continue;
    const std::string folder =
        resource_root + course.name + kPathSeparator + type_folder + kPathSeparator;
    const auto files = ListedFolder(folder);
    if (!files) continue;
    const std::optional<uint32_t> course_number = CourseNumberOf(course.name);
    for (const FolderEntry& file : *files) {
      if (IsResourceFileName(file.name, ".ars")) {
        found.push_back(
            {folder + file.name, NumberInName(file.name), course_number, false, file.isFile});
      } else if (options.twins && IsResourceFileName(file.name, ".arh")) {
        found.push_back(
            {folder + file.name, NumberInName(file.name), course_number, true, file.isFile});
      }
    }
  }
  return found;
}

void ListResourceFolders(const std::string& resource_root, FolderListing& listing) {
  const FolderEntries& courses = listing.Add(resource_root);
  if (!courses) return;
  for (const FolderEntry& course : *courses) {
    if (!course.isFolder) continue;
    const std::string course_folder = resource_root + course.name + kPathSeparator;
    const FolderEntries& types = listing.Add(course_folder);
    if (!types) continue;
    for (const FolderEntry& type : *types) {
      if (type.isFolder && IsTypeFolderName(type.name)) {
        listing.Add(course_folder + type.name + kPathSeparator);
      }
    }
  }
}

}  // namespace lumora
