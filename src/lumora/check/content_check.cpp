#include <lumora/check/checks.h>
#include <lumora/check/content_check.h>
#include <lumora/platform/kept_files.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <thread>
#include <utility>

namespace lumora {
namespace {

// When a check runs: the first ones in turn on the calling thread, then the others, one of them
// on a second thread while the rest run on the calling one. Nothing the later checks share
// changes once the first are done: the resource files they read are kept, and no check writes.
enum class Lane { kFirst, kSecondThread, kAfter };

// How a check moves the progress: per resource file it reads (it moves the progress itself),
// or as one step when it is done.
enum class Steps { kPerResourceFile, kOne };

struct NamedCheck {
  const char* name;
  void (*run)(const CheckedRoot&, CheckReport&);
  Lane lane;
  Steps steps = Steps::kOne;
};

// In this order: the resource files are read (and kept) before the index files are rebuilt from
// them and their media verified. The media check, the longest, has the second thread.
constexpr std::array kChecks = {
    NamedCheck{"config", &CheckConfig, Lane::kFirst},
    NamedCheck{"sets", &CheckSets, Lane::kFirst},
    NamedCheck{"resources", &CheckResources, Lane::kFirst, Steps::kPerResourceFile},
    NamedCheck{"index", &CheckIndexes, Lane::kAfter, Steps::kPerResourceFile},
    NamedCheck{"media", &CheckMedia, Lane::kSecondThread, Steps::kPerResourceFile},
    NamedCheck{"glossary", &CheckGlossary, Lane::kAfter},
    NamedCheck{"grammar", &CheckGrammar, Lane::kAfter},
    NamedCheck{"classification", &CheckClassification, Lane::kAfter},
    NamedCheck{"packages", &CheckPackages, Lane::kAfter},
    NamedCheck{"names", &CheckNameCase, Lane::kAfter},
};

uint64_t CountOf(const CheckReport& report, Severity severity) {
  return static_cast<uint64_t>(
      std::count_if(report.findings.begin(), report.findings.end(),
                    [&](const Finding& f) { return f.severity == severity; }));
}

bool Chosen(const CheckOptions& options, const char* name) {
  return options.checks.empty() ||
         std::find(options.checks.begin(), options.checks.end(), name) != options.checks.end();
}

}  // namespace

void CheckReport::Error(std::string file, std::string message, uint64_t count) {
  findings.push_back({Severity::kError, std::move(file), std::move(message), count});
}

void CheckReport::Warning(std::string file, std::string message, uint64_t count) {
  findings.push_back({Severity::kWarning, std::move(file), std::move(message), count});
}

uint64_t CheckReport::errors() const { return CountOf(*this, Severity::kError); }
uint64_t CheckReport::warnings() const { return CountOf(*this, Severity::kWarning); }

const std::vector<std::string>& CheckNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (const NamedCheck& check : kChecks) all.emplace_back(check.name);
    return all;
  }();
  return names;
}

bool IsCheckName(std::string_view name) {
  return std::any_of(kChecks.begin(), kChecks.end(),
                     [&](const NamedCheck& check) { return name == check.name; });
}

std::vector<CheckReport> CheckContentRoot(const std::string& contentRoot,
                                          const CheckOptions& options) {
  // The resources check reads every resource file once and keeps its bytes: the index rebuilds
  // and the media check that follow read them from memory. Every check scans the course and
  // type folders from the one listing the root made.
  KeptFiles kept;
  CheckedRoot root(contentRoot, options);
  const SharedFolderListing listed(root.resourceFolders);
  std::vector<const NamedCheck*> chosen;
  uint64_t steps = 0;
  for (const NamedCheck& check : kChecks) {
    if (!Chosen(options, check.name)) continue;
    chosen.push_back(&check);
    steps += check.steps == Steps::kOne ? 1 : root.resourceFiles;
  }
  root.SetProgressRange(steps);
  std::vector<CheckReport> reports(chosen.size());
  auto run = [&](Lane lane) {
    for (size_t i = 0; i < chosen.size(); ++i) {
      if (chosen[i]->lane != lane) continue;
      reports[i].name = chosen[i]->name;
      if (options.progress != nullptr && options.progress->StopRequested()) continue;
      chosen[i]->run(root, reports[i]);
      if (chosen[i]->steps == Steps::kOne) root.StepsDone(1);
    }
  };
  run(Lane::kFirst);
  std::exception_ptr failed;
  std::thread second([&] {
    try {
      const KeptFilesView view(kept);
      const SharedFolderListing listed_here(root.resourceFolders);
      run(Lane::kSecondThread);
    } catch (...) {
      failed = std::current_exception();
    }
  });
  try {
    run(Lane::kAfter);
  } catch (...) {
    second.join();
    throw;
  }
  second.join();
  if (failed) std::rethrow_exception(failed);
  root.StepsDone(UINT64_MAX);  // the checks that read fewer files than expected end here too
  return reports;
}

}  // namespace lumora
