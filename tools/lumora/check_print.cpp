#include "check_print.h"

#include <cstdio>

#include "printable_text.h"

namespace lumora::cli {
namespace {

const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

// Whether finding `f` of report `report` is marked as the source's too.
bool IsInherited(const InheritedFindings& inherited, size_t report,
                 const std::vector<Finding>& findings, const Finding* f) {
  if (report >= inherited.size()) return false;
  const size_t at = static_cast<size_t>(f - findings.data());
  return at < inherited[report].size() && inherited[report][at];
}

}  // namespace

void PrintCheckReports(const std::vector<CheckReport>& reports,
                       const InheritedFindings& inherited) {
  for (const CheckReport& r : reports) {
    std::printf("%-15s %8llu checked  %5llu errors  %5llu warnings\n", r.name.c_str(),
                static_cast<unsigned long long>(r.checked),
                static_cast<unsigned long long>(r.errors()),
                static_cast<unsigned long long>(r.warnings()));
  }
  for (size_t report = 0; report < reports.size(); ++report) {
    const CheckReport& r = reports[report];
    if (r.findings.empty()) continue;
    std::printf("\n%s:\n", r.name.c_str());
    for (const ShownFinding& shown : FindingsToShow(r.findings)) {
      const Finding& f = *shown.finding;
      std::printf("  %-7s %s: %s%s\n", SeverityName(f.severity), PrintableText(f.file).c_str(),
                  PrintableText(f.message).c_str(),
                  IsInherited(inherited, report, r.findings, &f) ? " (the source has it too)" : "");
      if (shown.moreLikeThis > 0) {
        std::printf("          and %llu more like this\n",
                    static_cast<unsigned long long>(shown.moreLikeThis));
      }
    }
  }
}

}  // namespace lumora::cli
