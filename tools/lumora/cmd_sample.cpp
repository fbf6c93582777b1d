// `lumora sample DIR`: writes a small but realistic content root, the demo's content and the
// easiest way to see the folder tree and the configuration file.
#include "commands.h"

#include <lumora/support/paths.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace lumora::cli {
namespace {

struct SampleDiscipline {
  int id;
  int param;  // low byte: the course language
};

constexpr SampleDiscipline kDisciplines[] = {{1, 17}, {2, 18}, {3, 33}};

// Configuration files come from Windows tools: CR LF line ends.
void WriteContentIni(const std::string& root) {
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
  if (!ini.flush()) throw CommandFailure("cannot write " + root + "Content.ini");
}

void WriteSample(const std::string& dir) {
  const std::string root = WithBackslash(dir);
  if (!CreateFolderPath(root)) throw CommandFailure("cannot create folder " + root);
  WriteContentIni(root);
  for (const auto& d : kDisciplines) {
    char folder[16];
    std::snprintf(folder, sizeof folder, "D%03d", d.id);
    if (!CreateFolderPath(root + folder)) throw CommandFailure("cannot create " + root + folder);
  }
  std::printf("sample content written to %s\n", root.c_str());
}

void AddSampleCommand(CLI::App& app) {
  auto* cmd = app.add_subcommand("sample", "Write a sample content root into DIR");
  auto dir = std::make_shared<std::string>();
  cmd->add_option("DIR", *dir, "Folder to write (created if missing)")->required();
  cmd->callback([dir] { WriteSample(*dir); });
}

const CommandRegistration kRegistration{"sample", &AddSampleCommand};

}  // namespace
}  // namespace lumora::cli
