// `lumora media ROOT -d ID --kind K --folder F --resource RID --path-kind url|unc [--order N]`:
// the path a host gets for one medium.
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
  uint32_t kind = 0;
  uint32_t folder = 0;
  std::string resource;
  std::string pathKind = "url";
  uint32_t order = 1;
  bool json = false;
};

void Run(const Options& options) {
  const MediaRef media(options.kind, options.folder, ParseNumber(options.resource, "resource"));
  OpenedContent content(options.root, 0);
  const ContentRequest request =
      RequestFor(options.discipline, ParsePathKind(options.pathKind), options.order);
  std::string path;
  const bool ok = lmGetMediaPath(&request, media, &path);
  if (options.json) {
    PrintJson({{"ok", ok}, {"path", PrintableText(path, kWindowsAnsi)}});
  } else if (ok) {
    std::cout << PrintableText(path, kWindowsAnsi) << '\n';
  }
  if (!ok) throw CommandFailure("medium not found");
}

void AddMediaCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("media", "Resolve one medium to a URL or UNC path");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--kind", options->kind, "1 sound, 2 picture, 3 video")
      ->required()
      ->check(CLI::Range(1u, 3u));
  command->add_option("--folder", options->folder, "Type folder number")->required();
  command->add_option("--resource", options->resource, "Resource id, decimal or 0x-hex")
      ->required()
      ->check(NumberText("resource"));
  command->add_option("--path-kind", options->pathKind, "url or unc")
      ->required()
      ->check(AnsweredPathKind());
  command->add_option("--order", options->order, "Quality folder order 1, 2 or 3")
      ->check(CLI::Range(1u, 3u));
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"media", &AddMediaCommand};

}  // namespace
}  // namespace lumora::cli
