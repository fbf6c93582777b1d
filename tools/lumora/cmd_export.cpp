// `lumora export ROOT -d ID (--packages P[,P...] [--quality 1,2,3] | --custom LISTS.json
// [--with-diagnosis]) --to DEST [--all-media] [--no-check] [--progress] [--json]`: exports
// packages of a discipline into DEST/D%03d/. The tool makes what the library expects to find
// there: the folder, its empty Content.mdb and, when DEST has none, a Content.ini whose one
// section describes the exported discipline, so that the export is a content root of its own.
//
// The library's answer does not tell everything: it stays silent about a medium, an index or a
// published file it failed to write. So the tool checks the export afterwards, and an error
// there that the source does not have fails the command like a line of the report.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "check_print.h"
#include "check_progress.h"
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
  bool allMedia = false;
  bool noCheck = false;
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

bool ShowsProgress(const Options& options) {
  return !options.json && (options.progress || ::isatty(STDERR_FILENO));
}

// The custom lists, or none; a list that cannot be exported is a usage error.
std::optional<CustomLists> ListsOf(const Options& options) {
  if (options.custom.empty()) return std::nullopt;
  try {
    return ReadCustomLists(options.custom);
  } catch (const BadCustomLists& bad) {
    throw CLI::ValidationError("--custom", bad.what());
  }
}

struct Exported {
  bool ok = false;
  uint32_t resources = 0;
  std::vector<std::string> report;
};

// The library's export, with its progress bar.
Exported RunExport(const Options& options, const std::optional<CustomLists>& lists,
                   const ByteArray& quality) {
  Exported exported;
  exported.resources = lists ? lists->packageResources.size() : 0;
  DWordArray packageIds;
  for (const std::string& id : options.packages) packageIds.Add(ParseNumber(id, "package"));
  std::optional<ExportProgressBar> bar;
  const bool shows = ShowsProgress(options);
  // The number of rows is known once the library has read them: the range, n + 16, tells it.
  const Progress progress(
      [&](uint32_t maximum) {
        exported.resources = maximum - 16;
        if (shows) bar.emplace(exported.resources, maximum);
      },
      [&](uint32_t position) {
        if (bar) bar->Draw(position);
      });
  std::string report;
  exported.ok = lists ? lmExportCustomizedPackage(
                            &lists->packages, &lists->translations, &lists->packageResources,
                            &lists->packageIds, options.discipline, &quality,
                            options.destination.c_str(), &progress, &report, options.withDiagnosis)
                      : lmExportPackage(options.discipline, packageIds, quality,
                                        options.destination.c_str(), &progress, &report);
  exported.report = ExportReportLines(report);
  return exported;
}

// The check of the export, with the check's progress bar: it moves per file the checks read.
ExportChecks RunChecks(const Options& options, ExportCheckInput input) {
  std::optional<CheckProgressBar> bar;
  const Progress progress(
      [&](uint32_t maximum) {
        if (bar) bar->SetRange(maximum);
      },
      [&](uint32_t position) {
        if (bar) bar->Draw(position);
      });
  if (ShowsProgress(options)) {
    bar.emplace();
    input.progress = &progress;
  }
  return CheckExport(input);
}

nlohmann::ordered_json CopyJson(const UncopiedMediaCopy& copy) {
  std::vector<std::string> problems;
  for (const std::string& problem : copy.problems) problems.push_back(PrintableText(problem));
  return {{"files", copy.files}, {"bytes", copy.bytes}, {"problems", problems}};
}

void Run(const Options& options) {
  const std::optional<CustomLists> lists = ListsOf(options);
  const ByteArray quality = ParseQualityFolders(options.quality);
  OpenedContent content(options.root, options.discipline, !lists);
  if (!content.ok()) {
    throw CommandFailure("cannot open discipline " + std::to_string(options.discipline) +
                         (lists ? "" : " with its package database") + " below " + options.root);
  }
  const std::string sourceLocalRoot = DisciplineFor(options.discipline).localRoot;
  const std::string exportFolder = PrepareDestination(options);
  // What the export writes: the files of the export folder (its database aside) and of Classes.
  const WrittenFiles written({exportFolder, (fs::path(options.destination) / "Classes").string()},
                             exportFolder + "Content.mdb");

  const Exported exported = RunExport(options, lists, quality);
  std::optional<UncopiedMediaCopy> copy;
  if (options.allMedia) copy = CopyUncopiedMedia(sourceLocalRoot, exportFolder, quality);
  const WrittenFiles::Count count = written.Since();
  std::optional<ExportChecks> checks;
  if (!options.noCheck) {
    checks = RunChecks(options, {options.root, sourceLocalRoot, options.destination, exportFolder,
                                 options.discipline, quality, options.allMedia});
  }
  const bool copied = !copy || copy->problems.empty();
  const uint64_t damage = checks ? checks->damage() : 0;
  if (options.json) {
    nlohmann::ordered_json summary = {{"ok", exported.ok && copied && damage == 0},
                                      {"exportFolder", PrintableText(exportFolder)},
                                      {"report", exported.report},
                                      {"resources", exported.resources},
                                      {"filesCopied", count.files},
                                      {"bytesCopied", count.bytes}};
    if (copy) summary["allMedia"] = CopyJson(*copy);
    if (checks) summary["checks"] = DescribeCheckReports(checks->reports, checks->inherited);
    PrintJson(summary);
  } else {
    for (const std::string& line : exported.report) std::printf("%s\n", line.c_str());
    if (copy) {
      for (const std::string& problem : copy->problems)
        std::printf("%s\n", PrintableText(problem).c_str());
    }
    std::printf("%s: %u resources, %llu files, %llu bytes%s\n", PrintableText(exportFolder).c_str(),
                exported.resources, static_cast<unsigned long long>(count.files),
                static_cast<unsigned long long>(count.bytes),
                exported.ok && copied ? "" : " (with problems)");
    if (copy) {
      std::printf("--all-media: %llu files, %llu bytes\n",
                  static_cast<unsigned long long>(copy->files),
                  static_cast<unsigned long long>(copy->bytes));
    }
    if (checks) {
      std::printf("\n");
      PrintCheckReports(checks->reports, checks->inherited);
    }
  }
  if (!exported.ok) throw CommandFailure("the export reported problems");
  if (!copied) throw CommandFailure("media of --all-media could not be copied");
  if (damage > 0) {
    throw CommandFailure("the check of the export found " + std::to_string(damage) +
                         (damage == 1 ? " error" : " errors") + " that the source does not have");
  }
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
  command->add_flag("--all-media", options->allMedia,
                    "Copy too the media that the export copies for no resource of types 19, 21, "
                    "28 and 1003");
  command->add_flag("--no-check", options->noCheck, "Do not check the export once it is written");
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
