// `lumora check ROOT [-d ID] [--checks LIST] [--quality 1,2,3] [--json] [--progress]
// [--fix-case]`: the integrity check of a whole content root. Exits with 1 when a check finds
// an error; warnings alone leave the exit code 0.
#include <lumora/content.h>
#include <lumora/maintenance.h>

#include <unistd.h>

#include <memory>
#include <optional>
#include <sstream>

#include "check_print.h"
#include "check_progress.h"
#include "commands.h"
#include "content_args.h"
#include "printable_text.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  uint32_t discipline = 0;
  std::string checks;
  std::string quality = "1,2,3";
  bool json = false;
  bool progress = false;
  bool fixCase = false;
};

std::vector<std::string> SplitChecks(const std::string& text) {
  std::vector<std::string> names;
  std::stringstream list(text);
  std::string name;
  while (std::getline(list, name, ',')) {
    if (!IsCheckName(name)) {
      std::string known;
      for (const std::string& n : CheckNames()) known += (known.empty() ? "" : ", ") + n;
      throw CommandFailure("no check named \"" + name + "\" (the checks: " + known + ")");
    }
    names.push_back(name);
  }
  return names;
}

void Run(const Options& options) {
  CheckOptions check;
  check.disciplineFilter = options.discipline;
  check.checks = SplitChecks(options.checks);
  check.qualityFolders = ParseQualityFolders(options.quality);
  check.fixCase = options.fixCase;
  std::optional<CheckProgressBar> bar;
  const Progress progress(
      [&](uint32_t maximum) {
        if (bar) bar->SetRange(maximum);
      },
      [&](uint32_t position) {
        if (bar) bar->Draw(position);
      });
  if (!options.json && (options.progress || ::isatty(STDERR_FILENO))) {
    bar.emplace();
    check.progress = &progress;
  }
  const std::vector<CheckReport> reports = CheckContentRoot(options.root, check);
  bar.reset();
  uint64_t errors = 0;
  for (const CheckReport& r : reports) errors += r.errors();
  if (options.json) {
    PrintJson(DescribeCheck(reports));
  } else {
    PrintCheckReports(reports);
  }
  if (errors > 0) {
    throw CommandFailure(std::to_string(errors) + (errors == 1 ? " error" : " errors") + " found");
  }
}

void AddCheckCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("check", "Check the integrity of a whole content root");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("-d,--discipline", options->discipline,
                      "Check only this discipline identifier");
  command->add_option("--checks", options->checks, "Comma-separated checks to run (default: all)")
      ->check(ParsedBy([](const std::string& text) { SplitChecks(text); }));
  command->add_option("--quality", options->quality, "Media quality folders to check")
      ->check(ParsedBy([](const std::string& text) { ParseQualityFolders(text); }));
  command->add_flag("--json", options->json, "Print JSON instead of text");
  command->add_flag("--progress", options->progress,
                    "Draw the progress bar even when standard error is not a terminal");
  command->add_flag("--fix-case", options->fixCase,
                    "Rename files and folders whose names differ only in case from what the "
                    "library looks for");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"check", &AddCheckCommand};

}  // namespace
}  // namespace lumora::cli
