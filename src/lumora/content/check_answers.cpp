// The integrity check of a content root through the content face, and its document.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/content/host_progress.h>
#include <lumora/describe/printable_text.h>
#include <lumora/frame/library_lock.h>

#include <filesystem>
#include <mutex>

namespace lumora {
namespace {

const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

Description ReportDocument(const CheckReport& report, const std::vector<bool>* inherited) {
  Description findings = Description::array();
  for (size_t i = 0; i < report.findings.size(); ++i) {
    const Finding& f = report.findings[i];
    Description finding = {{"severity", SeverityName(f.severity)},
                           {"file", PrintableText(f.file)},
                           {"message", PrintableText(f.message)}};
    if (inherited) finding["inherited"] = i < inherited->size() && (*inherited)[i];
    // A finding that stands for several says how many.
    if (f.count > 1) finding["count"] = f.count;
    findings.push_back(std::move(finding));
  }
  return {{"name", report.name},
          {"checked", report.checked},
          {"errors", report.errors()},
          {"warnings", report.warnings()},
          {"findings", std::move(findings)}};
}

Status Validate(const std::string& root, const CheckRequest& request, CheckOptions* options) {
  for (const std::string& name : request.checks) {
    if (IsCheckName(name)) continue;
    std::string known;
    for (const std::string& n : CheckNames()) known += (known.empty() ? "" : ", ") + n;
    return Failure(StatusCode::kInvalidArgument,
                   "no check named \"" + name + "\" (the checks: " + known + ")");
  }
  if (Status quality = QualityFolders(request.quality, &options->qualityFolders); !quality.ok())
    return quality;
  std::error_code error;
  if (!std::filesystem::is_regular_file(std::filesystem::path(root) / "Content.ini", error)) {
    return NotFound("no Content.ini in " + root);
  }
  options->disciplineFilter = request.discipline;
  options->checks = request.checks;
  options->fixCase = request.fixCase;
  return Status();
}

}  // namespace

Description DescribeCheckReports(const std::vector<CheckReport>& reports,
                                 const std::vector<std::vector<bool>>& inherited) {
  Description checks = Description::array();
  for (size_t i = 0; i < reports.size(); ++i)
    checks.push_back(ReportDocument(reports[i], inherited.empty() ? nullptr : &inherited.at(i)));
  return checks;
}

Description DescribeCheck(const std::vector<CheckReport>& reports) {
  uint64_t errors = 0;
  for (const CheckReport& r : reports) errors += r.errors();
  return {{"ok", errors == 0}, {"checks", DescribeCheckReports(reports)}};
}

Answer CheckContent(const std::string& root, const CheckRequest& request,
                    const ProgressFunction& progress) {
  CheckOptions options;
  if (Status invalid = Validate(root, request, &options); !invalid.ok())
    return Failed(std::move(invalid));
  const HostProgress host(progress);
  options.progress = host.progress();
  std::lock_guard one_check(CheckMutex());
  Description document = DescribeCheck(CheckContentRoot(root, options));
  if (host.stopped()) {
    return {Failure(StatusCode::kStopped, "the check was stopped"), std::move(document)};
  }
  return Found(std::move(document));
}

// The checks silence the library's notices while they run by swapping the process's one notice
// handler: two at once would restore each other's.
std::mutex& CheckMutex() {
  static std::mutex mutex;
  return mutex;
}

Answer ContentRoot::Check(uint32_t discipline) const {
  std::lock_guard one_check(CheckMutex());
  std::shared_lock lock(LibraryMutex());
  if (!open_) return Failed(NotFound("the content root is closed"));
  CheckOptions options;
  options.disciplineFilter = discipline;
  return Found(DescribeCheck(CheckContentRoot(root_, options)));
}

}  // namespace lumora
