// A fresh sample content root for each check test, and the findings of one check over it as
// "severity file: message" lines, so that a test states exactly what a check must say.
#pragma once

#include <lumora/check/content_check.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/temp_dir.h"

namespace lumora::testing {

// The findings of `report`, one "severity file: message" line each.
std::vector<std::string> FindingLines(const CheckReport& report);

class CheckTest : public ::testing::Test {
 protected:
  void SetUp() override;

  // The findings of check `name` over the root, one line each.
  std::vector<std::string> Findings(const std::string& name, bool fix_case = false) const;
  // The report of check `name`.
  CheckReport Report(const std::string& name, bool fix_case = false) const;

  const std::string& root() const { return dir.path(); }

  TempDir dir;
};

}  // namespace lumora::testing
