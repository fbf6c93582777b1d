// `lumora path-info ROOT [-d ID] [--json]`: the data folder of a discipline, or the common
// Local root when the identifier names none.
#include <lumora/lumora.h>

#include <nlohmann/json.hpp>

#include <iostream>
#include <memory>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  bool json = false;
};

void Run(const Options& options) {
  OpenedContent content(options.root, 0);
  ContentRequest request;
  request.disciplineId = options.discipline;
  const std::string path = PrintableText(lmGetPathInfos(&request), kWindowsAnsi);
  if (options.json) {
    PrintJson({{"path", path}});
  } else {
    std::cout << path << '\n';
  }
}

void AddPathInfoCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("path-info", "Show a discipline's data folder");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier");
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"path-info", &AddPathInfoCommand};

}  // namespace
}  // namespace lumora::cli
