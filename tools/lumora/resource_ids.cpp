#include "resource_ids.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>

namespace lumora::cli {
namespace {

namespace fs = std::filesystem;

// A name of the form `letter` + `digits` decimal digits, and its number.
std::optional<uint32_t> NumberedName(const std::string& name, char letter, size_t digits) {
  if (name.size() != digits + 1 || name[0] != letter) return std::nullopt;
  uint32_t value = 0;
  for (size_t i = 1; i < name.size(); ++i) {
    if (name[i] < '0' || name[i] > '9') return std::nullopt;
    value = value * 10 + static_cast<uint32_t>(name[i] - '0');
  }
  return value;
}

// The courses whose folder of `type` holds each resource number, from one listing per course.
std::map<uint32_t, std::vector<uint32_t>> CoursesByNumber(const fs::path& root, uint32_t type) {
  std::map<uint32_t, std::vector<uint32_t>> courses;
  std::error_code error;
  char type_folder[16];
  std::snprintf(type_folder, sizeof type_folder, "r%07u", type);
  for (const fs::directory_entry& course : fs::directory_iterator(root, error)) {
    const std::optional<uint32_t> c = NumberedName(course.path().filename().string(), 'C', 4);
    if (!c) continue;
    std::error_code inner;
    for (const fs::directory_entry& file :
         fs::directory_iterator(course.path() / type_folder, inner)) {
      const fs::path name = file.path().filename();
      const std::string extension = name.extension().string();
      if (extension != ".ars" && extension != ".arh") continue;
      const std::optional<uint32_t> n = NumberedName(name.stem().string(), 'r', 7);
      if (!n) continue;
      courses[*n].push_back(*c);
    }
  }
  return courses;
}

}  // namespace

std::vector<uint32_t> IndexedResourceIds(const std::string& local_root, uint32_t type,
                                         const std::vector<uint32_t>& numbers) {
  std::map<uint32_t, std::vector<uint32_t>> courses = CoursesByNumber(local_root, type);
  std::vector<uint32_t> ids;
  ids.reserve(numbers.size());
  for (uint32_t number : numbers) {
    const auto found = courses.find(number & 0xFFFFF);
    if (found == courses.end()) {
      ids.push_back(number & 0xFFFFF);
      continue;
    }
    // A number listed once per course that holds it gives each of its ids once, at its first
    // listing; the listings after it are already answered.
    std::vector<uint32_t>& list = found->second;
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    for (uint32_t course : list) ids.push_back(course << 20 | (number & 0xFFFFF));
    list.clear();
  }
  return ids;
}

}  // namespace lumora::cli
