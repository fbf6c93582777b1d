#include <gmock/gmock.h>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;

using ConfigCheck = CheckTest;

TEST_F(ConfigCheck, TheSampleHasOnlyItsListedDiscipline) {
  EXPECT_THAT(Findings("config"),
              ElementsAre("warning Content.ini: section [004] (discipline 9) has Type 1: "
                          "lmGetDisciplines lists it, the open never opens it"));
}

// What the open reads and what it never reaches: a section after a gap, a section without its
// identifier, a key given twice (the search goes on from the last key found, so the second
// Local is the one read after Discipline), a section given twice, a key before any section,
// and roots that are not there.
TEST_F(ConfigCheck, SaysWhatTheOpenReadsAndWhatItNeverReaches) {
  dir.Write("Content.ini",
            "Stray=1\n"
            "[001]\n"
            "Local=/nowhere/first\n"
            "Discipline=1\n"
            "Local=" +
                root() +
                "D001\n"
                "[002]\n"
                "Param=18\n"
                "[002]\n"
                "Discipline=5\n"
                "[004]\n"
                "Discipline=4\n");
  EXPECT_THAT(
      Findings("config"),
      ElementsAre(
          "warning Content.ini: line 1 is a key before the first section header: it is never "
          "read",
          "warning Content.ini: section [002] has no Discipline key: it is discipline 0",
          "warning Content.ini: key local is given 2 times in section [001] (lines 3 and 5): "
          "the library uses line 5, \"" +
              root() + "D001\"",
          "warning Content.ini: section [004] (line 10) comes after a gap in the numbering "
          "(there is no [003]): the library never reads it",
          "warning Content.ini: section [002] is given 2 times (lines 6 and 8): the library "
          "reads the keys of one of them only",
          "error D000/: the Local root of discipline 0 does not exist",
          "error D000/: the data folder of discipline 0 (index files, Content.mdb) does not "
          "exist"));
}

TEST_F(ConfigCheck, AMissingConfigurationIsOneError) {
  std::remove((root() + "Content.ini").c_str());
  EXPECT_THAT(Findings("config"),
              ElementsAre("error Content.ini: cannot be read: the library opens nothing below "
                          "this root"));
}

}  // namespace
}  // namespace lumora
