// The findings of the integrity checks as `lumora check` and `lumora export` show them: a line of
// counts per check, then the findings of each check that has any, 20 of one problem per file and
// a line that counts the rest; in JSON every finding, with "count" where one stands for several.
// The check of an export also says, for each finding, whether the source has it too.
#pragma once

#include <lumora/maintenance.h>

#include <nlohmann/json.hpp>

#include <vector>

namespace lumora::cli {

// For each report, for each of its findings: whether the source of an export has it too.
// Empty for a check that weighs nothing against a source.
using InheritedFindings = std::vector<std::vector<bool>>;

void PrintCheckReports(const std::vector<CheckReport>& reports,
                       const InheritedFindings& inherited = {});

// The reports as the "checks" of `--json`; with marks, each finding has "inherited".
nlohmann::ordered_json CheckReportsJson(const std::vector<CheckReport>& reports,
                                        const InheritedFindings& inherited = {});

}  // namespace lumora::cli
