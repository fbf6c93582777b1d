// The media of every indexed resource in the chosen quality folders, and the resource files it
// refers to: one finding per line the resource itself reports.
#include <lumora/check/checks.h>
#include <lumora/check/media_verification.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/utf8.h>

#include <sstream>

namespace lumora {
namespace {

constexpr uint32_t kReportCodePage = 1252;

// A line of the resource's report as a finding says it: without its leading tabs, in UTF-8
// (the resources report in code page 1252), paths relative to the root. Type 40 ends its line
// about a missing linked file with a break and then "!": that "!" closes the line before, so it
// is dropped where it opens one.
std::string FindingText(const CheckedRoot& root, const std::string& line) {
  const size_t first = line.find_first_not_of(line.starts_with('!') ? "!\t " : "\t ");
  if (first == std::string::npos) return std::string();
  std::string text = Utf16ToUtf8(DecodeCodePage(line.substr(first), kReportCodePage));
  for (size_t at = text.find(root.root); at != std::string::npos && !root.root.empty();
       at = text.find(root.root, at)) {
    text.erase(at, root.root.size());
  }
  return text;
}

void Report(const CheckedRoot& root, const MediaVerification& v, CheckReport& report) {
  ++report.checked;
  root.StepsDone(1);
  if (v.ok()) return;  // what most resources have to say
  const std::string file = root.Relative(v.path);
  if (!v.read) {
    report.Error(file, "does not decode, so its media are not checked (see the resources check)");
    return;
  }
  std::stringstream lines(v.report);
  std::string line;
  while (std::getline(lines, line)) {
    const std::string finding = FindingText(root, line);
    if (!finding.empty()) report.Error(file, finding);
  }
}

}  // namespace

void CheckMedia(const CheckedRoot& root, CheckReport& report) {
  for (size_t d = 0; d < root.disciplines.size(); ++d) {
    // The resources check verified them as it decoded them, when it ran.
    if (!root.decoded.media.empty()) {
      for (const MediaVerification& v : root.decoded.media[d]) Report(root, v, report);
      continue;
    }
    const Discipline& discipline = *root.disciplines[d].discipline;
    if (!discipline.resourceIndex) continue;
    for (const MediaVerification& v : VerifyIndexedMedia(
             discipline.localRoot, *discipline.resourceIndex, root.qualityFolders(), std::nullopt,
             {}, [&root](const std::string& path) { return root.ChecksResourceFile(path); })) {
      Report(root, v, report);
    }
  }
}

}  // namespace lumora
