// The integrity check of a content root through the content face, and the document it answers.
#include <lumora/check/content_check.h>
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/content/host_progress.h>
#include <lumora/describe/printable_text.h>

#include <filesystem>

namespace lumora {
namespace {

const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

Description ReportDocument(const CheckReport& report) {
  Description findings = Description::array();
  for (const Finding& f : report.findings) {
    findings.push_back({{"severity", SeverityName(f.severity)},
                        {"file", PrintableText(f.file)},
                        {"message", PrintableText(f.message)}});
  }
  return {{"name", report.name},
          {"checked", report.checked},
          {"errors", report.errors()},
          {"warnings", report.warnings()},
          {"findings", findings}};
}

Status Validate(const std::string& root, const CheckRequest& request) {
  for (const std::string& name : request.checks) {
    if (IsCheckName(name)) continue;
    std::string known;
    for (const std::string& n : CheckNames()) known += (known.empty() ? "" : ", ") + n;
    return Failure(StatusCode::kInvalidArgument,
                   "no check named \"" + name + "\" (the checks: " + known + ")");
  }
  for (uint8_t folder : request.quality) {
    if (folder < 1 || folder > 3) {
      return Failure(StatusCode::kInvalidArgument,
                     "quality folders are 1, 2 or 3: " + std::to_string(folder));
    }
  }
  std::error_code error;
  if (!std::filesystem::is_regular_file(std::filesystem::path(root) / "Content.ini", error)) {
    return NotFound("no Content.ini in " + root);
  }
  return Status();
}

Description CheckDocument(const std::vector<CheckReport>& reports) {
  uint64_t errors = 0;
  Description checks = Description::array();
  for (const CheckReport& r : reports) {
    errors += r.errors();
    checks.push_back(ReportDocument(r));
  }
  return {{"ok", errors == 0}, {"checks", checks}};
}

}  // namespace

Answer CheckContent(const std::string& root, const CheckRequest& request,
                    const ProgressFunction& progress) {
  if (Status invalid = Validate(root, request); !invalid.ok()) return Failed(std::move(invalid));
  const HostProgress host(progress);
  CheckOptions options;
  options.disciplineFilter = request.discipline;
  options.checks = request.checks;
  for (uint8_t folder : request.quality) options.qualityFolders.Add(folder);
  options.fixCase = request.fixCase;
  options.progress = host.progress();
  Description document = CheckDocument(CheckContentRoot(root, options));
  if (host.stopped()) {
    return {Failure(StatusCode::kStopped, "the check was stopped"), std::move(document)};
  }
  return Found(std::move(document));
}

}  // namespace lumora
