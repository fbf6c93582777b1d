// The findings of the integrity checks as `lumora check` and `lumora export` show them: a line of
// counts per check, then the findings of each check that has any, 20 of one problem per file and
// a line that counts the rest (their JSON is the library's DescribeCheckReports). The check of an
// export also says, for each finding, whether the source has it too.
#pragma once

#include <lumora/maintenance.h>

#include <vector>

namespace lumora::cli {

void PrintCheckReports(const std::vector<CheckReport>& reports,
                       const InheritedFindings& inherited = {});

}  // namespace lumora::cli
