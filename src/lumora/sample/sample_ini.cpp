#include <lumora/sample/sample_ini.h>

#include <lumora/support/paths.h>

#include <cstdio>

#include <lumora/sample/sample_files.h>

namespace lumora::sample {
namespace {

std::string SectionName(int number) {
  char name[16];
  std::snprintf(name, sizeof name, "[%03d]", number);
  return name;
}

constexpr char kServer[] = "\\\\lumora-server\\content\\";
constexpr char kSite[] = "http://content.lumora.test/course/";

// The second section lists its keys in another order: readers find keys in any order. Each
// discipline names its own network and web roots, below the shared ones.
std::string SectionText(int number, const SampleDiscipline& d) {
  char folder[16];
  std::snprintf(folder, sizeof folder, "D%03d", d.id);
  const std::string roots =
      std::string("UNC=") + kServer + folder + "\r\nURL=" + kSite + folder + "/\r\n";
  const std::string id = "Discipline=" + std::to_string(d.id) + "\r\n";
  const std::string type = "Type=" + std::to_string(d.type) + "\r\n";
  const std::string param = "Param=" + std::to_string(d.param) + "\r\n";
  const std::string keys = number == 2 ? param + id + type : id + type + param;
  return "\r\n" + SectionName(number) + "\r\n" + keys + roots;
}

}  // namespace

std::string DisciplineFolder(int id) {
  char folder[16];
  std::snprintf(folder, sizeof folder, "D%03d", id);
  return folder + std::string(1, kPathSeparator);
}

// Configuration files come from Windows tools: CR LF line ends.
bool WriteContentIni(const std::string& root, std::string* error) {
  std::string text = std::string("[Common]\r\nUNC=") + kServer + "\r\nURL=" + kSite + "\r\n";
  int number = 1;
  for (const SampleDiscipline& d : kSampleDisciplines) text += SectionText(number++, d);
  return WriteBytesFile(root + "Content.ini", text, error);
}

}  // namespace lumora::sample
