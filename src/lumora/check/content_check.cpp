#include <lumora/check/checks.h>
#include <lumora/check/content_check.h>
#include <lumora/platform/kept_files.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <optional>
#include <thread>
#include <utility>

namespace lumora {
namespace {

// When a check runs: the first ones in turn on the calling thread; then the resources check on
// the calling thread (with a second thread of its own), while the checks beside it, which read
// nothing the resources check makes, run on a thread of their own; then the others, one of them
// on a second thread while the rest run on the calling one. Nothing the later checks share
// changes once the resources check is done, since no check writes into the tree, except the
// names check when it fixes names: it then runs alone, after every other.
enum class Lane { kFirst, kBeside, kReading, kSecondThread, kAfter };

// How a check moves the progress: per resource file it reads (it moves the progress itself),
// or as one step when it is done.
enum class Steps { kPerResourceFile, kOne };

struct NamedCheck {
  const char* name;
  void (*run)(const CheckedRoot&, CheckReport&);
  Lane lane;
  Steps steps = Steps::kOne;
  bool renames = false;  // whether it changes the tree when the options fix names
};

// In this order: the resource files are read, their media verified and what the index rebuilds
// need of them taken as they are decoded, before the index files are rebuilt.
constexpr std::array kChecks = {
    NamedCheck{"config", &CheckConfig, Lane::kFirst},
    NamedCheck{"sets", &CheckSets, Lane::kFirst},
    NamedCheck{"resources", &CheckResources, Lane::kReading, Steps::kPerResourceFile},
    NamedCheck{"index", &CheckIndexes, Lane::kSecondThread, Steps::kPerResourceFile},
    NamedCheck{"media", &CheckMedia, Lane::kAfter, Steps::kPerResourceFile},
    NamedCheck{"glossary", &CheckGlossary, Lane::kAfter},
    NamedCheck{"grammar", &CheckGrammar, Lane::kAfter},
    NamedCheck{"classification", &CheckClassification, Lane::kAfter},
    NamedCheck{"packages", &CheckPackages, Lane::kBeside},
    NamedCheck{"names", &CheckNameCase, Lane::kAfter, Steps::kOne, true},
};

uint64_t CountOf(const CheckReport& report, Severity severity) {
  return static_cast<uint64_t>(
      std::count_if(report.findings.begin(), report.findings.end(),
                    [&](const Finding& f) { return f.severity == severity; }));
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
  // The resources check reads and decodes every resource file once: it verifies their media and
  // takes what the index rebuilds need, and keeps the bytes of the files that the rebuilds read
  // again. Every check scans the course and type folders from the one listing the root made.
  KeptFiles kept;
  CheckedRoot root(contentRoot, options);
  const SharedFolderListing listed(root.resourceFolders);
  std::vector<const NamedCheck*> chosen;
  uint64_t steps = 0;
  for (const NamedCheck& check : kChecks) {
    if (!root.Runs(check.name)) continue;
    chosen.push_back(&check);
    steps += check.steps == Steps::kOne ? 1 : root.resourceFiles;
  }
  root.SetProgressRange(steps);
  std::vector<CheckReport> reports(chosen.size());
  auto run_one = [&](size_t i) {
    reports[i].name = chosen[i]->name;
    if (options.progress != nullptr && options.progress->StopRequested()) return;
    chosen[i]->run(root, reports[i]);
    if (chosen[i]->steps == Steps::kOne) root.StepsDone(1);
  };
  const auto alone = [&](size_t i) { return chosen[i]->renames && options.fixCase; };
  auto run = [&](Lane lane) {
    for (size_t i = 0; i < chosen.size(); ++i) {
      if (chosen[i]->lane == lane && !alone(i)) run_one(i);
    }
  };
  // A lane on a thread of its own, which reads the kept files when `reads_kept` (they no longer
  // change then); what it throws is rethrown once it is joined.
  std::exception_ptr failed[2];
  auto on_thread = [&](Lane lane, bool reads_kept, std::exception_ptr& failure) {
    return std::thread([&, lane, reads_kept] {
      try {
        std::optional<KeptFilesView> view;
        if (reads_kept) view.emplace(kept);
        const SharedFolderListing listed_here(root.resourceFolders);
        run(lane);
      } catch (...) {
        failure = std::current_exception();
      }
    });
  };
  run(Lane::kFirst);
  std::thread beside = on_thread(Lane::kBeside, false, failed[0]);
  std::thread second;
  const auto join = [&] {
    if (beside.joinable()) beside.join();
    if (second.joinable()) second.join();
  };
  try {
    run(Lane::kReading);
    second = on_thread(Lane::kSecondThread, true, failed[1]);
    run(Lane::kAfter);
  } catch (...) {
    join();
    throw;
  }
  join();
  for (const std::exception_ptr& failure : failed) {
    if (failure) std::rethrow_exception(failure);
  }
  for (size_t i = 0; i < chosen.size(); ++i) {
    if (alone(i)) run_one(i);
  }
  root.StepsDone(UINT64_MAX);  // the checks that read fewer files than expected end here too
  return reports;
}

}  // namespace lumora
