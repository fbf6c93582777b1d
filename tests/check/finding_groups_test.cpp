#include <lumora/check/content_check.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumora {
namespace {

// One finding per word of an index whose offsets are all wrong reads as the first 20 and a count
// of the rest; a finding of another problem, another file or another severity is shown apart
// even when it comes between them.
TEST(FindingsToShow, ShowsTheFirstTwentyOfOneProblemInOneFileAndCountsTheRest) {
  std::vector<Finding> findings;
  for (int word = 1; word <= 25; ++word) {
    findings.push_back({Severity::kError, "t_Glo_FNs.idx",
                        "offset of word " + std::to_string(word) + " misses its record"});
    if (word == 3) {
      findings.push_back({Severity::kError, "t_Glo_FNs.idx", "is cut short at byte 12"});
      findings.push_back(
          {Severity::kError, "t_Glo_Links.idx", "offset of word 3 misses its record"});
      findings.push_back(
          {Severity::kWarning, "t_Glo_FNs.idx", "offset of word 3 misses its record"});
    }
  }
  const std::vector<ShownFinding> shown = FindingsToShow(findings);
  ASSERT_EQ(shown.size(), 23u);
  EXPECT_EQ(shown[3].finding->message, "is cut short at byte 12");
  EXPECT_EQ(shown[4].finding->file, "t_Glo_Links.idx");
  EXPECT_EQ(shown[5].finding->severity, Severity::kWarning);
  EXPECT_EQ(shown[22].finding->message, "offset of word 20 misses its record");
  EXPECT_EQ(shown[22].moreLikeThis, 5u);
  for (size_t i = 0; i < 22; ++i) EXPECT_EQ(shown[i].moreLikeThis, 0u) << i;

  // Exactly as many as are shown: nothing is left out, so nothing is counted.
  findings.resize(20 + 3);
  for (const ShownFinding& s : FindingsToShow(findings)) EXPECT_EQ(s.moreLikeThis, 0u);
}

}  // namespace
}  // namespace lumora
