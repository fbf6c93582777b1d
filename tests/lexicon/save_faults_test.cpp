// Every save of set files, failed or crashed at each of its disk steps in turn, leaves the
// folder entirely old or entirely new once it is reopened (see fixtures/fault_sweep.h).
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/platform/notify.h>
#include <lumora/platform/profile.h>
#include <lumora/support/folder_commit.h>

#include <gtest/gtest.h>

#include "fixtures/fault_sweep.h"
#include "fixtures/temp_dir.h"
#include "lexicon/filled_lexicon.h"
#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

using testing::SweepFaults;
using testing::TempDir;

class SaveFaults : public ::testing::Test {
 protected:
  void SetUp() override {
    previous_ = SetNotifyHandler([](const std::string&) {});
  }
  void TearDown() override { SetNotifyHandler(previous_); }

  void Reopen() const { FolderReadScope scope(dir.path()); }

  void ExpectSweep(const std::function<bool()>& save) {
    const testing::SweepCounts counts = SweepFaults(dir.path(), save, [this] { Reopen(); });
    EXPECT_GT(counts.steps, 0);
  }

  TempDir dir;

 private:
  NotifyHandler previous_;
};

TEST_F(SaveFaults, WholeGlossaryWithIndexes) {
  CGloV6 glossary;
  testing::FillSmallGlossary(glossary);
  glossary.setFolder(dir.path());
  ASSERT_TRUE(glossary.save(false, {}));
  glossary.writings.Insert({99, u"new word"});
  ExpectSweep([&] { return glossary.save(true, {1}); });
}

TEST_F(SaveFaults, GlossaryResortSavesThreeTablesTogether) {
  CGloV6 glossary;
  testing::FillSmallGlossary(glossary);
  glossary.setFolder(dir.path());
  ASSERT_TRUE(glossary.save(false, {}));
  ASSERT_TRUE(rebuildSortAndLetters(glossary));
  glossary.letters.Insert({u"Z", 9, 0, 0});
  ExpectSweep([&] { return SaveSortAndLetters(glossary).ok(); });
}

TEST_F(SaveFaults, WholeGrammar) {
  CGramV6 grammar = testing::GrammarWithOneOfEach();
  grammar.setFolder(dir.path());
  ASSERT_TRUE(grammar.save());
  grammar.keywords.Insert({7, u"seven"});
  ExpectSweep([&] { return grammar.save(); });
}

TEST_F(SaveFaults, WholeClassification) {
  Classification classification;
  testing::FillClassificationWithOneOfEach(classification, dir.path());
  ASSERT_TRUE(classification.save());
  classification.famSem.Insert({8, u"eight", 8});
  ExpectSweep([&] { return classification.save(); });
}

TEST_F(SaveFaults, OneTableAndItsChecksum) {
  CGramV6 grammar = testing::GrammarWithOneOfEach();
  grammar.setFolder(dir.path());
  ASSERT_TRUE(grammar.save());
  grammar.points.Insert({9, 0, 0, u"nine"});
  ExpectSweep([&] {
    return WriteSetTable(dir.path(), u"t_Gr_Points", SetFamily::kGrammar, grammar.points);
  });
}

TEST_F(SaveFaults, ChecksumListAlone) {
  dir.Write("CRCFile.ini", "[Main]\r\nt.set=1\r\n");
  ExpectSweep([&] {
    return profile::WriteString(dir.path() + "CRCFile.ini", "Main", "Version_t.idx", "2");
  });
}

}  // namespace
}  // namespace lumora
