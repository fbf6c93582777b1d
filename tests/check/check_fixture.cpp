#include "check/check_fixture.h"

#include <lumora/sample/sample_content.h>

namespace lumora::testing {

void CheckTest::SetUp() {
  std::string error;
  ASSERT_TRUE(sample::WriteSampleContent(dir.path(), {1, false}, &error)) << error;
}

CheckReport CheckTest::Report(const std::string& name, bool fix_case) const {
  CheckOptions options;
  options.checks = {name};
  options.fixCase = fix_case;
  std::vector<CheckReport> reports = CheckContentRoot(root(), options);
  EXPECT_EQ(reports.size(), 1u);
  return reports.empty() ? CheckReport{} : reports.front();
}

std::vector<std::string> FindingLines(const CheckReport& report) {
  std::vector<std::string> lines;
  for (const Finding& f : report.findings) {
    lines.push_back(std::string(f.severity == Severity::kError ? "error " : "warning ") + f.file +
                    ": " + f.message);
  }
  return lines;
}

std::vector<std::string> CheckTest::Findings(const std::string& name, bool fix_case) const {
  return FindingLines(Report(name, fix_case));
}

}  // namespace lumora::testing
