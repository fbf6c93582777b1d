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

std::vector<std::string> CheckTest::Findings(const std::string& name, bool fix_case) const {
  std::vector<std::string> lines;
  for (const Finding& f : Report(name, fix_case).findings) {
    lines.push_back(std::string(f.severity == Severity::kError ? "error " : "warning ") + f.file +
                    ": " + f.message);
  }
  return lines;
}

}  // namespace lumora::testing
