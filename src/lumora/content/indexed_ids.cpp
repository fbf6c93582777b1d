// The resource ids behind a type's index. An index lists resource numbers, the low 20 bits of
// the ids: the course is the folder that holds the file, C%04d below the discipline's Local root.
#include <lumora/content/content_answers.h>

#include <cstdio>
#include <filesystem>
#include <map>

namespace lumora {
namespace {

namespace fs = std::filesystem;

// "C0001" → 1; -1 for a name that is not a course folder's.
int CourseOf(const std::string& name) {
  if (name.size() != 5 || name[0] != 'C') return -1;
  int course = 0;
  for (size_t i = 1; i < name.size(); ++i) {
    if (name[i] < '0' || name[i] > '9') return -1;
    course = course * 10 + (name[i] - '0');
  }
  return course;
}

// "r0000012.ars" or its ".arh" twin → 12; -1 for another name.
int64_t NumberOf(const std::string& name) {
  if (name.size() != 12 || name[0] != 'r') return -1;
  const std::string extension = name.substr(8);
  if (extension != ".ars" && extension != ".arh") return -1;
  int64_t number = 0;
  for (size_t i = 1; i < 8; ++i) {
    if (name[i] < '0' || name[i] > '9') return -1;
    number = number * 10 + (name[i] - '0');
  }
  return number;
}

}  // namespace

std::vector<uint32_t> IdsOfNumbers(const std::string& localRoot, uint32_t type,
                                   const std::vector<uint32_t>& numbers) {
  // The courses whose type folder holds each number's file, ascending.
  std::map<uint32_t, std::vector<uint32_t>> courses;
  char folder[16];
  std::snprintf(folder, sizeof folder, "r%07u", type);
  std::error_code error;
  std::map<int, fs::path> found;
  for (fs::directory_iterator it(localRoot, error), end; !error && it != end; it.increment(error)) {
    const int course = CourseOf(it->path().filename().string());
    if (course >= 0 && course <= 0xFFF) found.emplace(course, it->path() / folder);
  }
  for (const auto& [course, path] : found) {
    std::error_code listing;
    for (fs::directory_iterator it(path, listing), end; !listing && it != end;
         it.increment(listing)) {
      const int64_t number = NumberOf(it->path().filename().string());
      if (number < 0 || number > 0xFFFFF) continue;
      std::vector<uint32_t>& in = courses[static_cast<uint32_t>(number)];
      if (in.empty() || in.back() != static_cast<uint32_t>(course)) in.push_back(course);
    }
  }
  // A number without a file anywhere keeps course 0: reading it says that the file is missing.
  std::vector<uint32_t> ids;
  for (uint32_t number : numbers) {
    const auto it = courses.find(number & 0xFFFFF);
    if (it == courses.end()) {
      ids.push_back(number & 0xFFFFF);
      continue;
    }
    for (uint32_t course : it->second) ids.push_back(course << 20 | (number & 0xFFFFF));
  }
  return ids;
}

}  // namespace lumora
