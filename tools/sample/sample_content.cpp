#include "sample/sample_content.h"

#include <lumora/support/paths.h>

#include <cstdio>
#include <fstream>

namespace lumora::sample {
namespace {

struct SampleDiscipline {
  int id;
  int param;  // low byte: the course language
};

constexpr SampleDiscipline kDisciplines[] = {{1, 17}, {2, 18}, {3, 33}};

std::string DisciplineFolder(int id) {
  char folder[16];
  std::snprintf(folder, sizeof folder, "D%03d/", id);
  return folder;
}

// Configuration files come from Windows tools: CR LF line ends.
bool WriteContentIni(const std::string& root) {
  std::ofstream ini(root + "Content.ini", std::ios::binary);
  auto line = [&](const std::string& text) { ini << text << "\r\n"; };
  line("[Common]");
  line("UNC=\\\\lumora-server\\content\\");
  line("URL=http://content.lumora.test/course/");
  int section = 1;
  for (const auto& d : kDisciplines) {
    char name[16];
    std::snprintf(name, sizeof name, "[%03d]", section++);
    line("");
    line(name);
    line("Discipline=" + std::to_string(d.id));
    line("Type=0");
    line("Param=" + std::to_string(d.param));
  }
  return static_cast<bool>(ini.flush());
}

}  // namespace

bool WriteSampleContent(const std::string& dir, const SampleOptions& options, std::string* error) {
  (void)options;
  const std::string root = WithBackslash(dir);
  if (!CreateFolderPath(root)) {
    *error = "cannot create folder " + root;
    return false;
  }
  if (!WriteContentIni(root)) {
    *error = "cannot write " + root + "Content.ini";
    return false;
  }
  for (const auto& d : kDisciplines) {
    if (!CreateFolderPath(root + DisciplineFolder(d.id))) {
      *error = "cannot create " + root + DisciplineFolder(d.id);
      return false;
    }
  }
  return true;
}

}  // namespace lumora::sample
