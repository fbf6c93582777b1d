// `lumora classification ROOT [--json]`: the five classification tables that opening ROOT
// loads, the grammatical categories with the label each interface language gets.
#include <lumora/descriptions.h>
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <cstdio>
#include <memory>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  bool json = false;
};

void PrintText(const Description& json) {
  std::printf("folder %s\n", json["folder"].get<std::string>().c_str());
  for (const auto& [table, records] : json.items()) {
    if (!records.is_array()) continue;
    std::printf("%s (%zu)\n", table.c_str(), records.size());
    for (const auto& r : records) {
      std::printf("  %8u  value %5u  %s\n", r["id"].get<uint32_t>(), r["value"].get<uint32_t>(),
                  r["label"].get<std::string>().c_str());
      if (!r.contains("labels")) continue;
      for (const auto& [code, label] : r["labels"].items()) {
        std::printf("            %s %s\n", code.c_str(), label.get<std::string>().c_str());
      }
    }
  }
}

void Run(const Options& options) {
  OpenedContent content(options.root, 0);
  const Classification& classification = *lmGetClassification();
  // Opening sets the folder before it loads anything, even when no discipline opens.
  if (classification.folder.empty()) {
    throw CommandFailure("cannot read the configuration of " + options.root);
  }
  if (const auto failure = ClassificationLoadFailure()) {
    throw CommandFailure(FailureText(options.root, *failure));
  }
  const Description json = DescribeClassification(classification);
  if (options.json) {
    PrintJson(json);
  } else {
    PrintText(json);
  }
}

void AddClassificationCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command =
      app.add_subcommand("classification", "Show the classification tables of a content root");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"classification", &AddClassificationCommand};

}  // namespace
}  // namespace lumora::cli
