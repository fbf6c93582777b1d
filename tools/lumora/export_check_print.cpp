#include "export_check_print.h"

#include <cstdio>

#include "printable_text.h"

namespace lumora::cli {
namespace {

const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

nlohmann::ordered_json FindingJson(const ExportFinding& f) {
  nlohmann::ordered_json json = {{"severity", SeverityName(f.finding.severity)},
                                 {"file", PrintableText(f.finding.file)},
                                 {"message", PrintableText(f.finding.message)},
                                 {"inherited", f.inherited}};
  if (f.count > 1) json["count"] = f.count;
  return json;
}

}  // namespace

void PrintExportChecks(const std::vector<ExportCheckReport>& reports) {
  for (const ExportCheckReport& r : reports) {
    std::printf("%-15s %8llu checked  %5llu errors  %5llu warnings\n", r.name.c_str(),
                static_cast<unsigned long long>(r.checked),
                static_cast<unsigned long long>(r.errors()),
                static_cast<unsigned long long>(r.warnings()));
  }
  for (const ExportCheckReport& r : reports) {
    if (r.findings.empty()) continue;
    std::printf("\n%s:\n", r.name.c_str());
    for (const ExportFinding& f : r.findings) {
      std::printf("  %-7s %s: %s%s\n", SeverityName(f.finding.severity),
                  PrintableText(f.finding.file).c_str(), PrintableText(f.finding.message).c_str(),
                  f.inherited ? " (the source has it too)" : "");
    }
  }
}

nlohmann::ordered_json ExportChecksJson(const std::vector<ExportCheckReport>& reports) {
  nlohmann::ordered_json checks = nlohmann::ordered_json::array();
  for (const ExportCheckReport& r : reports) {
    nlohmann::ordered_json findings = nlohmann::ordered_json::array();
    for (const ExportFinding& f : r.findings) findings.push_back(FindingJson(f));
    checks.push_back({{"name", r.name},
                      {"checked", r.checked},
                      {"errors", r.errors()},
                      {"warnings", r.warnings()},
                      {"findings", findings}});
  }
  return checks;
}

}  // namespace lumora::cli
