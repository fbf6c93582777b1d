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
#include <lumora/packages/export_folder.h>
#include <lumora/platform/atomic_write.h>
#include <lumora/support/paths.h>
#include <lumora/support/profile_file.h>

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

#include "check_print.h"
#include "check_progress.h"
#include "commands.h"
#include "content_args.h"
#include "export_check.h"
#include "export_lists.h"
#include "export_progress.h"
#include "printable_text.h"
#include "uncopied_media.h"
#include "written_files.h"

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

// The keys of the source's section for the discipline that the exported tree keeps. Local is
// left out: the exported discipline's files lie below the new root.
constexpr const char* kCopiedKeys[] = {"Discipline", "Type", "Param", "URL", "UNC"};

std::string SectionName(int number) {
  char name[16];
  std::snprintf(name, sizeof name, "%03d", number);
  return name;
}

// The discipline's section of the source's Content.ini, as the destination's section 001.
std::string ExportedContentIni(const std::string& root, uint32_t discipline) {
  ProfileFile ini;
  if (!ini.Load(WithBackslash(root) + "Content.ini")) {
    throw CommandFailure(root + ": Content.ini cannot be read");
  }
  for (int n = 1; ini.FindSection(SectionName(n)); ++n) {
    if (static_cast<uint32_t>(ini.GetInt("Discipline")) != discipline) continue;
    std::string text = "[001]\r\n";
    for (const char* key : kCopiedKeys)
      text += std::string(key) + "=" + ini.GetString(key) + "\r\n";
    return text;
  }
  throw CommandFailure(root + ": Content.ini has no section for discipline " +
                       std::to_string(discipline));
}

// The export's publishing pass writes beside the resources of every discipline that DEST's
// Content.ini lists, below their Local roots: one that points outside DEST would have files of
// another tree rewritten. The library passes such a discipline over; the tool refuses the
// destination before anything is written, so that the export is never a partial one.
void CheckLocalRoots(const std::string& destination) {
  ProfileFile ini;
  if (!ini.Load(WithBackslash(destination) + "Content.ini")) return;
  std::vector<std::string> sections = {"Common"};
  for (int n = 1; ini.FindSection(SectionName(n)); ++n) sections.push_back(SectionName(n));
  for (const std::string& section : sections) {
    if (!ini.FindSection(section)) continue;
    std::string local = ini.GetString("Local");
    if (local.empty()) continue;
    std::replace(local.begin(), local.end(), '\\', '/');
    if (!PathIsWithin(local, destination)) {
      throw CommandFailure(WithBackslash(destination) + "Content.ini: section " + section +
                           " has its files in " + local +
                           ", outside the destination, where the export would write");
    }
  }
}

// DEST with its export folder, an empty database there unless one exists, and a Content.ini
// unless DEST has one. Answers the export folder.
std::string PrepareDestination(const Options& options) {
  const fs::path destination(options.destination);
  std::error_code error;
  if (fs::exists(destination, error) && !fs::is_directory(destination, error)) {
    throw CommandFailure(options.destination + ": is not a folder");
  }
  CheckLocalRoots(options.destination);
  const std::string exportFolder = ExportFolderOf(options.destination, options.discipline);
  fs::create_directories(exportFolder, error);
  if (error) throw CommandFailure(exportFolder + ": cannot be created: " + error.message());
  // An empty file is an empty database; one that exists is left for the export to judge.
  const std::string database = exportFolder + "Content.mdb";
  if (!fs::exists(database) && !std::ofstream(database, std::ios::binary)) {
    throw CommandFailure(database + ": cannot be created");
  }
  const std::string ini = WithBackslash(options.destination) + "Content.ini";
  if (!fs::exists(ini)) {
    const WriteStatus written =
        WriteFileAtomically(ini, ExportedContentIni(options.root, options.discipline));
    if (!written.ok()) throw CommandFailure(written.ToString());
  }
  return exportFolder;
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
  exported.report = ReportLines(report);
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
  const WrittenFiles written({exportFolder, WithBackslash(options.destination) + "Classes"},
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
    if (checks) summary["checks"] = CheckReportsJson(checks->reports, checks->inherited);
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
