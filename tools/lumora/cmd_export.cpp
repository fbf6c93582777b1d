// `lumora export ROOT -d ID (--packages P[,P...] [--quality 1,2,3] | --custom LISTS.json
// [--with-diagnosis]) --to DEST [--progress] [--json]`: exports packages of a discipline into
// DEST/D%03d/. The tool makes what the library expects to find there: the folder, its empty
// Content.mdb and, when DEST has none, a Content.ini whose one section describes the exported
// discipline, so that the export is a content root of its own.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <vector>

#include "commands.h"
#include "content_args.h"
#include "export_lists.h"
#include "export_progress.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

namespace fs = std::filesystem;

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::vector<std::string> packages;
  std::string quality = "1,2,3";
  std::string custom;
  bool withDiagnosis = false;
  std::string destination;
  bool progress = false;
  bool json = false;
};

// DEST made ready for the export; a destination that cannot be is a CommandFailure.
std::string PrepareDestination(const Options& options) {
  Status status;
  const std::string exportFolder =
      PrepareExportDestination(options.root, options.discipline, options.destination, &status);
  if (!status.ok()) throw CommandFailure(status.reason);
  return exportFolder;
}

struct Written {
  uint64_t files = 0;
  uint64_t bytes = 0;
};

// What the export wrote: the files of the export folder (its database aside) and of Classes.
Written WrittenBy(const std::string& exportFolder, const std::string& destination) {
  Written written;
  std::error_code error;
  for (const std::string& folder : {exportFolder, (fs::path(destination) / "Classes").string()}) {
    for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end;
         it.increment(error)) {
      if (!it->is_regular_file(error) || it->path() == fs::path(exportFolder + "Content.mdb"))
        continue;
      ++written.files;
      written.bytes += it->file_size(error);
    }
  }
  return written;
}

std::vector<std::string> ReportLines(const std::string& report) {
  std::vector<std::string> lines;
  std::istringstream in(report);
  for (std::string line; std::getline(in, line);)
    lines.push_back(PrintableText(line, kWindowsAnsi));
  return lines;
}

bool ShowsProgress(const Options& options) {
  return !options.json && (options.progress || ::isatty(STDERR_FILENO));
}

void Run(const Options& options) {
  const bool custom = !options.custom.empty();
  std::optional<CustomLists> lists;
  if (custom) lists = ReadCustomLists(options.custom);
  DWordArray packageIds;
  for (const std::string& id : options.packages) packageIds.Add(ParseNumber(id, "package"));
  const ByteArray quality = ParseQualityFolders(options.quality);
  OpenedContent content(options.root, options.discipline, !custom);
  if (!content.ok()) {
    throw CommandFailure("cannot open discipline " + std::to_string(options.discipline) +
                         (custom ? "" : " with its package database") + " below " + options.root);
  }
  const std::string exportFolder = PrepareDestination(options);

  std::string report;
  uint32_t resources = custom ? lists->packageResources.size() : 0;
  std::optional<ExportProgressBar> bar;
  const bool shows = ShowsProgress(options);
  // The number of rows is known once the library has read them: the range, n + 16, tells it.
  const Progress progress(
      [&](uint32_t maximum) {
        resources = maximum - 16;
        if (shows) bar.emplace(resources, maximum);
      },
      [&](uint32_t position) {
        if (bar) bar->Draw(position);
      });
  const bool ok =
      custom ? lmExportCustomizedPackage(&lists->packages, &lists->translations,
                                         &lists->packageResources, &lists->packageIds,
                                         options.discipline, &quality, options.destination.c_str(),
                                         &progress, &report, options.withDiagnosis)
             : lmExportPackage(options.discipline, packageIds, quality, options.destination.c_str(),
                               &progress, &report);
  bar.reset();
  const Written written = WrittenBy(exportFolder, options.destination);
  const std::vector<std::string> lines = ReportLines(report);
  if (options.json) {
    PrintJson({{"ok", ok},
               {"exportFolder", PrintableText(exportFolder)},
               {"report", lines},
               {"resources", resources},
               {"filesCopied", written.files},
               {"bytesCopied", written.bytes}});
  } else {
    for (const std::string& line : lines) std::printf("%s\n", line.c_str());
    std::printf("%s: %u resources, %llu files, %llu bytes%s\n", PrintableText(exportFolder).c_str(),
                resources, static_cast<unsigned long long>(written.files),
                static_cast<unsigned long long>(written.bytes), ok ? "" : " (with problems)");
  }
  if (!ok) throw CommandFailure("the export reported problems");
}

void AddExportCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("export", "Export packages of a discipline");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline, "Discipline identifier")->required();
  auto* packages = command
                       ->add_option("--packages", options->packages,
                                    "Packages to export, from the discipline's database (P[,P...])")
                       ->delimiter(',')
                       ->check(NumberText("package"));
  auto* custom = command->add_option("--custom", options->custom,
                                     "Export the lists of this JSON file instead (see README)");
  packages->excludes(custom);
  command
      ->add_option("--quality", options->quality,
                   "Media quality folders to export, each 1, 2 or 3 (default 1,2,3)")
      ->check(ParsedBy([](const std::string& text) { ParseQualityFolders(text); }));
  command
      ->add_flag("--with-diagnosis", options->withDiagnosis,
                 "With --custom: write the diagnosis package file too")
      ->needs(custom);
  command->add_option("--to", options->destination, "Destination root")->required();
  command->add_flag("--progress", options->progress, "Show the progress bar even off a terminal");
  command->add_flag("--json", options->json, "Print JSON instead of text (no progress bar)");
  command->callback([options, packages, custom] {
    if (packages->count() == 0 && custom->count() == 0) {
      throw CLI::RequiredError("--packages or --custom");
    }
    Run(*options);
  });
}

const CommandRegistration reg{"export", &AddExportCommand};

}  // namespace
}  // namespace lumora::cli
