// `lumora packages ROOT -d ID [--resources P[,P...]] [--json]`: a discipline's packages with
// version, generation date and title in every language, or the resource rows of some of them.
#include <lumora/descriptions.h>
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <cstdio>
#include <memory>
#include <vector>

#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::vector<std::string> resources;
  bool json = false;
};

void PrintPackages(const Options& options) {
  PackageList packages;
  if (!lmGetPackages(options.discipline, &packages)) {
    throw CommandFailure("no package could be read for discipline " +
                         std::to_string(options.discipline));
  }
  // A discipline without translations still lists its packages, untitled.
  TranslationList translations;
  lmGetPackageTranslations(options.discipline, &translations);
  const Description rows = DescribePackages(packages, translations);
  if (options.json) {
    PrintJson(rows);
    return;
  }
  std::printf("%6s %7s  %-19s %8s\n", "id", "version", "generated", "idString");
  for (const auto& row : rows) {
    std::printf("%6u %7d  %-19s %8d\n", row["id"].get<uint32_t>(), row["version"].get<int>(),
                row["date"].get<std::string>().c_str(), row["idString"].get<int>());
    for (const auto& title : row["titles"]) {
      std::printf("%8s %s (%u): %s\n", "", title["code"].get<std::string>().c_str(),
                  title["codePage"].get<unsigned>(), title["text"].get<std::string>().c_str());
    }
  }
}

void PrintResources(const Options& options) {
  DWordArray ids;
  for (const std::string& id : options.resources) ids.Add(ParseNumber(id, "package identifier"));
  PackageResourceList rows;
  if (!GetPackageResources(options.discipline, &ids, &rows)) {
    throw CommandFailure("no package resource could be read for discipline " +
                         std::to_string(options.discipline));
  }
  const Description list = DescribePackageResources(rows);
  if (options.json) {
    PrintJson(list);
    return;
  }
  std::printf("%7s %6s %10s\n", "package", "type", "item");
  for (const auto& row : list) {
    std::printf("%7u %6d   0x%06X\n", row["package"].get<uint32_t>(), row["type"].get<int>(),
                row["item"].get<unsigned>());
  }
}

void Run(const Options& options) {
  OpenedContent content(options.root, options.discipline, true);
  if (!content.ok()) {
    throw CommandFailure("cannot open discipline " + std::to_string(options.discipline) +
                         " with its package database below " + options.root);
  }
  if (options.resources.empty()) {
    PrintPackages(options);
  } else {
    PrintResources(options);
  }
}

void AddPackagesCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("packages", "List a discipline's packages");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  command
      ->add_option("--resources", options->resources,
                   "Show the resource rows of these packages instead (P[,P...])")
      ->delimiter(',')
      ->check(NumberText("package identifier"));
  command->add_flag("--json", options->json, "Print JSON instead of a table");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"packages", &AddPackagesCommand};

}  // namespace
}  // namespace lumora::cli
