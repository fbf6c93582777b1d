// The check of an export as `lumora check` shows its checks: a line of counts per check, then
// the findings of each check that has any; a finding the source has too says so, and one that
// stands for several says how many.
#pragma once

#include <nlohmann/json.hpp>

#include <vector>

#include "export_check.h"

namespace lumora::cli {

void PrintExportChecks(const std::vector<ExportCheckReport>& reports);

// The reports as `lumora check --json` gives its "checks", each finding with "inherited" and,
// where it stands for several, "count".
nlohmann::ordered_json ExportChecksJson(const std::vector<ExportCheckReport>& reports);

}  // namespace lumora::cli
