// `lumora index ROOT -d ID [--type T]`: what a discipline's index files hold, type by type in the
// order they were loaded.
#include <lumora/descriptions.h>
#include <lumora/lumora.h>

#include <iostream>
#include <memory>
#include <optional>

#include "commands.h"
#include "content_args.h"
#include "human_form.h"
#include "printable_text.h"
#include "tree_print.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::optional<uint32_t> type;
  bool json = false;
};

// Groups as one "key K: numbers" line each; entries in the resources' human form.
Description HumanIndex(const Description& type) {
  Description out = Description::object();
  for (const auto& [key, field] : type.items()) {
    if (key == "type") continue;
    if (key != "groups") {
      out[key] = HumanForm(field);
      continue;
    }
    for (const auto& group : field) {
      out["key " + group["key"].dump()] = group["resources"];
    }
  }
  return out;
}

void Run(const Options& options) {
  OpenedContent content(options.root, 0);
  const ContentRequest request = RequestFor(options.discipline, kPathUrl);
  const ResourceIndex* index = lmGetResourceInfos(&request);
  if (index == nullptr) throw CommandFailure("discipline has no resource index");
  const Description described = DescribeIndex(*index, request, options.type);
  const Description& types = described["types"];
  if (options.json) {
    PrintJson(described);
  } else {
    for (const auto& type : types) {
      std::cout << "type " << type["type"].get<uint32_t>() << '\n';
      PrintTree(std::cout, HumanIndex(type), 2);
    }
  }
  if (options.type && types.empty()) {
    throw CommandFailure("discipline " + std::to_string(options.discipline) +
                         " has no index of type " + std::to_string(*options.type));
  }
}

void AddIndexCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("index", "Show a discipline's resource index");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command->add_option("--type", options->type, "Show only this exercise type");
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"index", &AddIndexCommand};

}  // namespace
}  // namespace lumora::cli
