#include "content_scan.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string_view>

namespace diagnosis {
namespace {

namespace fs = std::filesystem;

constexpr uint32_t kLastCourse = 0xFFF;
constexpr uint32_t kLastNumber = 0xFFFFF;

// The number of a name made of `letter`, exactly `digits` decimal digits and `suffix`.
std::optional<uint32_t> NumberedName(std::string_view name, char letter, size_t digits,
                                     std::string_view suffix) {
  if (name.size() != 1 + digits + suffix.size() || name[0] != letter) return std::nullopt;
  if (name.substr(1 + digits) != suffix) return std::nullopt;
  uint32_t value = 0;
  for (char c : name.substr(1, digits)) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + static_cast<uint32_t>(c - '0');
  }
  return value;
}

// The entries of `folder` (none when it cannot be listed) whose kind is the one asked for.
std::vector<fs::path> Entries(const fs::path& folder, bool folders) {
  std::vector<fs::path> found;
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    std::error_code kind_ec;
    if (it->is_directory(kind_ec) == folders) found.push_back(it->path());
  }
  return found;
}

std::string NameOf(const fs::path& path) { return path.filename().string(); }

}  // namespace

bool IsFolder(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_directory(path, ec);
}

std::vector<uint32_t> LessonNumbers(const std::string& folder) {
  std::vector<uint32_t> lessons;
  for (const fs::path& course : Entries(folder, true)) {
    auto n = NumberedName(NameOf(course), 'C', 4, "");
    if (n && *n >= 1 && *n <= kLastCourse) lessons.push_back(*n);
  }
  std::sort(lessons.begin(), lessons.end());
  return lessons;
}

std::vector<uint32_t> ExerciseIdentifiers(const std::string& folder) {
  std::vector<uint32_t> ids;
  for (uint32_t lesson : LessonNumbers(folder)) {
    char course[16];
    std::snprintf(course, sizeof course, "C%04u", lesson);
    for (const fs::path& type : Entries(fs::path(folder) / course, true)) {
      if (!NumberedName(NameOf(type), 'r', 7, "")) continue;
      for (const fs::path& file : Entries(type, false)) {
        auto number = NumberedName(NameOf(file), 'r', 7, ".ars");
        if (number && *number <= kLastNumber) ids.push_back(lesson << 20 | *number);
      }
    }
  }
  std::sort(ids.begin(), ids.end());
  ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
  return ids;
}

}  // namespace diagnosis
