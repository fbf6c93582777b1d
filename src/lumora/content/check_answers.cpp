// The integrity check of the open root through the content face, and its document.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/describe/printable_text.h>
#include <lumora/frame/library_lock.h>

#include <mutex>

namespace lumora {
namespace {

const char* SeverityName(Severity severity) {
  return severity == Severity::kError ? "error" : "warning";
}

Description ReportDocument(const CheckReport& report) {
  Description findings = Description::array();
  for (const Finding& f : report.findings) {
    Description finding = {{"severity", SeverityName(f.severity)},
                           {"file", PrintableText(f.file)},
                           {"message", PrintableText(f.message)}};
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

// The checks silence the library's notices while they run by swapping the process's one notice
// handler: two at once would restore each other's.
std::mutex& CheckMutex() {
  static std::mutex mutex;
  return mutex;
}

}  // namespace

Description DescribeCheck(const std::vector<CheckReport>& reports) {
  uint64_t errors = 0;
  Description checks = Description::array();
  for (const CheckReport& r : reports) {
    errors += r.errors();
    checks.push_back(ReportDocument(r));
  }
  return {{"ok", errors == 0}, {"checks", std::move(checks)}};
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
