// `lumora open ROOT [--filter ID] [--json]`: what opening a content root registers.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <memory>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t filter = 0;
  bool json = false;
};

nlohmann::ordered_json DisciplineJson(const DisciplineSummary& d) {
  nlohmann::ordered_json types = nlohmann::ordered_json::array();
  const ContentRequest request = RequestFor(d.id);
  if (const ResourceIndex* index = lmGetResourceInfos(&request)) {
    for (uint32_t type : index->types()) types.push_back(type);
  }
  return {{"id", d.id},
          {"localRoot", PrintableText(d.localRoot, kWindowsAnsi)},
          {"uncRoot", PrintableText(d.uncRoot, kWindowsAnsi)},
          {"urlRoot", PrintableText(d.urlRoot, kWindowsAnsi)},
          {"dataFolder", PrintableText(d.dataFolder, kWindowsAnsi)},
          {"types", types}};
}

void Run(const Options& options) {
  OpenedContent content(options.root, options.filter);
  nlohmann::ordered_json disciplines = nlohmann::ordered_json::array();
  for (const DisciplineSummary& d : OpenedDisciplines()) disciplines.push_back(DisciplineJson(d));
  if (options.json) {
    PrintJson({{"ok", content.ok()}, {"disciplines", disciplines}});
  } else {
    std::printf("open: %s\n", content.ok() ? "ok" : "failed");
    for (const auto& d : disciplines) {
      std::printf(
          "discipline %u\n  local  %s\n  unc    %s\n  url    %s\n  data   %s\n  types  %s\n",
          d["id"].get<uint32_t>(), d["localRoot"].get<std::string>().c_str(),
          d["uncRoot"].get<std::string>().c_str(), d["urlRoot"].get<std::string>().c_str(),
          d["dataFolder"].get<std::string>().c_str(), d["types"].dump().c_str());
    }
  }
  if (!content.ok()) throw CommandFailure("no discipline could be opened below " + options.root);
}

void AddOpenCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("open", "Open a content root and show its disciplines");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("--filter", options->filter, "Open only this discipline identifier");
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"open", &AddOpenCommand};

}  // namespace
}  // namespace lumora::cli
