#include <lumora/check/checks.h>
#include <lumora/check/content_check.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lumora {
namespace {

struct NamedCheck {
  const char* name;
  void (*run)(const CheckedRoot&, CheckReport&);
};

constexpr std::array kChecks = {
    NamedCheck{"config", &CheckConfig},  NamedCheck{"sets", &CheckSets},
    NamedCheck{"index", &CheckIndexes},  NamedCheck{"resources", &CheckResources},
    NamedCheck{"names", &CheckNameCase},
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

void CheckReport::Error(std::string file, std::string message) {
  findings.push_back({Severity::kError, std::move(file), std::move(message)});
}

void CheckReport::Warning(std::string file, std::string message) {
  findings.push_back({Severity::kWarning, std::move(file), std::move(message)});
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
  const CheckedRoot root(contentRoot, options);
  std::vector<const NamedCheck*> chosen;
  for (const NamedCheck& check : kChecks) {
    if (Chosen(options, check.name)) chosen.push_back(&check);
  }
  const Progress none;
  const Progress& progress = options.progress != nullptr ? *options.progress : none;
  progress.SetRange(static_cast<uint32_t>(chosen.size()));
  std::vector<CheckReport> reports;
  for (const NamedCheck* check : chosen) {
    CheckReport& report = reports.emplace_back();
    report.name = check->name;
    check->run(root, report);
    progress.SetPosition(static_cast<uint32_t>(reports.size()));
  }
  return reports;
}

}  // namespace lumora
