// `lumora sample DIR [--scale N]`: writes a small but realistic content root, the demo's content
// and the easiest way to see the folder tree and every file format.
#include <lumora/maintenance.h>
#include "commands.h"
#include "printable_text.h"

#include <cstdio>
#include <memory>
#include <string>

namespace lumora::cli {
namespace {

void AddSampleCommand(CLI::App& app) {
  auto* cmd = app.add_subcommand("sample", "Write a sample content root into DIR");
  auto dir = std::make_shared<std::string>();
  auto options = std::make_shared<SampleOptions>();
  cmd->add_option("DIR", *dir, "Folder to write (created if missing)")->required();
  cmd->add_option("--scale", options->scale, "Units of content per discipline (12 resources each)")
      ->check(CLI::Range(1, kMaxSampleScale));
  cmd->callback([dir, options] {
    std::string error;
    if (!WriteSampleContent(*dir, *options, &error)) throw CommandFailure(error);
    std::printf("sample content written to %s\n",
                PrintableText(dir->empty() || dir->back() == '/' ? *dir : *dir + '/').c_str());
  });
}

const CommandRegistration kRegistration{"sample", &AddSampleCommand};

}  // namespace
}  // namespace lumora::cli
