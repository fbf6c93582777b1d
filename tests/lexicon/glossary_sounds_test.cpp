// Sound and recognition lookups: the word-number bounds, the table read whole against the
// index, the index versions, and the sound paths built from the media template.
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/platform/profile.h>
#include <lumora/support/xcrc_file2.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/temp_dir.h"
#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

GloSoundRecord Sound(uint16_t fnId, uint8_t status) {
  GloSoundRecord sound;
  sound.fnId = fnId;
  sound.status = status;
  return sound;
}

class GlossarySounds : public ::testing::Test {
 protected:
  GlossarySounds() {
    for (uint16_t fnId : {0, 5, 6, 65535}) {
      saved.sounds.Insert(Sound(fnId, fnId == 6 ? 0 : GloSoundRecord::kPresentStatus));
      saved.recos.Insert({fnId, 0, GloRecoRecord::kPresentStatus, u"", u"x|y"});
    }
    saved.setFolder(dir.path());
  }

  // Saves with the indexes built by the rules of `index_version`, records that version for
  // both of them and loads the glossary back.
  void SaveIndexed(int32_t index_version) {
    saved.soundIndexVersion = saved.recoIndexVersion = index_version;
    ASSERT_TRUE(saved.save(true, {}));
    for (const char* index : {"Version_t_Glo_Sounds.idx", "Version_t_Glo_Reco1600.idx"}) {
      profile::WriteString(dir.path() + xCRCFile2::kListName, "Main", index,
                           std::to_string(index_version));
    }
    ASSERT_TRUE(loaded.load(dir.path()));
  }

  testing::TempDir dir;
  CGloV6 saved;
  CGloV6 loaded;
};

TEST_F(GlossarySounds, WordsZeroAndLastAreNeverLookedUp) {
  GloSoundRecord sound;
  GloRecoRecord reco;
  for (uint16_t fnId : {0, 65535}) {
    EXPECT_FALSE(saved.getSound(fnId, sound)) << fnId;
    EXPECT_FALSE(saved.getReco(fnId, reco)) << fnId;
  }
  EXPECT_TRUE(saved.getSound(5, sound));
  EXPECT_FALSE(saved.getSound(7, sound));

  // With version 1 every record gets an offset, words 0 and 65535 excepted.
  SaveIndexed(1);
  EXPECT_EQ(loaded.soundIndex.size(), 65536u);
  EXPECT_EQ(loaded.soundIndex[0], kNoRecordOffset);
  EXPECT_NE(loaded.soundIndex[6], kNoRecordOffset);
  EXPECT_FALSE(loaded.getSound(0, sound));
  EXPECT_TRUE(loaded.getSound(5, sound));
  EXPECT_FALSE(loaded.getSound(7, sound));
}

TEST_F(GlossarySounds, VersionTwoIndexAnswersAloneVersionOneReadsTheRecord) {
  SaveIndexed(2);
  EXPECT_EQ(loaded.soundIndexVersion, 2);
  // The record of 6 is kept out of a version 2 index; with the set file gone the index alone
  // still answers for 5.
  std::filesystem::remove(dir.path() + "t_Glo_Sounds.set");
  EXPECT_TRUE(loaded.hasSound(5));
  EXPECT_FALSE(loaded.hasSound(6));
  EXPECT_FALSE(loaded.hasSound(7));

  SaveIndexed(1);
  EXPECT_EQ(loaded.soundIndexVersion, 1);
  EXPECT_EQ(loaded.recoIndexVersion, 1);
  EXPECT_TRUE(loaded.hasSound(5));
  EXPECT_FALSE(loaded.hasSound(6));  // listed, but its status says absent
  EXPECT_TRUE(loaded.hasReco(6));
  std::filesystem::remove(dir.path() + "t_Glo_Sounds.set");
  EXPECT_FALSE(loaded.hasSound(5));
}

TEST_F(GlossarySounds, RecoBarsBecomeSemicolonsOnlyWhenAsked) {
  GloRecoRecord reco;
  ASSERT_TRUE(saved.getRecoFrom(5, reco, 0));
  EXPECT_EQ(reco.text2, u"x|y");
  ASSERT_TRUE(saved.getRecoFrom(5, reco, 1));
  EXPECT_EQ(reco.text2, u"x;y");
  EXPECT_EQ(saved.recos.Find(5)->text2, u"x|y");
  SaveIndexed(2);
  ASSERT_TRUE(loaded.getRecoFrom(5, reco, 7));
  EXPECT_EQ(reco.text2, u"x;y");
  EXPECT_FALSE(loaded.getRecoFrom(65535, reco, 1));
}

TEST_F(GlossarySounds, SoundPathFollowsTheIndexVersion) {
  SaveIndexed(2);
  loaded.mediaTemplate = dir.path() + "Q%d/%03d/%02d.swf";
  // Version 2: the index decides; the file is not looked for.
  EXPECT_EQ(loaded.getSoundPath(5, 3), dir.path() + "Q3/000/05.swf");
  EXPECT_EQ(loaded.getSoundPath(6, 3), "");

  SaveIndexed(1);
  loaded.mediaTemplate = dir.path() + "Q%d/%03d/%02d.swf";
  EXPECT_EQ(loaded.getSoundPath(5, 3), "");
  dir.Write("Q3/000/05.swf", "");
  dir.Write("Q3/000/06.swf", "");
  EXPECT_EQ(loaded.getSoundPath(5, 3), dir.path() + "Q3/000/05.swf");
  EXPECT_EQ(loaded.getSoundPath(6, 3), "");  // the file is there, the status says absent

  // Without a template, as for local requests, there is no path.
  loaded.mediaTemplate.clear();
  EXPECT_EQ(loaded.getSoundPath(5, 3), "");
}

TEST_F(GlossarySounds, SoundPathSplitsTheWordNumberIntoFolderAndFile) {
  CGloV6 glossary;
  glossary.soundIndex.SetSize(12346);
  glossary.soundIndex[12345] = 8;
  glossary.mediaTemplate = "http://cdn/100%/C0000/r0001001/Q%d/%03d/%02d.swf";
  EXPECT_EQ(glossary.getSoundPath(12345, 2), "http://cdn/100%/C0000/r0001001/Q2/123/45.swf");
}

}  // namespace
}  // namespace lumora
