// The glossary's ten tables saved and loaded as a whole, with and without the indexes.
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/set_file.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "fixtures/temp_dir.h"
#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

class GlossaryFile : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::FillSmallGlossary(saved);
    saved.setFolder(dir.path() + "glo");
    std::filesystem::create_directories(saved.folder);
  }

  testing::TempDir dir;
  CGloV6 saved;
  CGloV6 loaded;
};

TEST_F(GlossaryFile, SavedTablesLoadBackWhole) {
  ASSERT_TRUE(saved.save(false, {}));
  ASSERT_TRUE(loaded.load(dir.path() + "glo"));
  EXPECT_EQ(loaded.folder, dir.path() + "glo/");
  EXPECT_EQ(loaded.setVersion, 2);
  EXPECT_EQ(loaded.fns.size(), 7u);
  EXPECT_EQ(loaded.writings.size(), 7u);
  EXPECT_EQ(loaded.links.size(), 3u);
  EXPECT_EQ(loaded.clouds.size(), 1u);
  EXPECT_EQ(loaded.translations.size(), 3u);
  EXPECT_EQ(loaded.comments.size(), 5u);
  EXPECT_EQ(loaded.sorted.size(), 7u);
  EXPECT_EQ(loaded.letters.size(), 3u);
  EXPECT_EQ(loaded.sounds.size(), 2u);
  EXPECT_EQ(loaded.recos.size(), 1u);
  EXPECT_TRUE(loaded.soundIndex.empty());
  EXPECT_EQ(loaded.getWritingText(21), u"été");
}

TEST_F(GlossaryFile, WithIndexesTheSoundAndRecoRecordsStayInTheirFiles) {
  ASSERT_TRUE(saved.save(true, {}));
  ASSERT_TRUE(loaded.load(saved.folder));
  EXPECT_TRUE(loaded.sounds.empty());
  EXPECT_TRUE(loaded.recos.empty());
  EXPECT_EQ(loaded.soundIndex.size(), 12u);  // words 0 to 11
  EXPECT_EQ(loaded.recoIndex.size(), 11u);
  EXPECT_EQ(loaded.soundIndexVersion, 2);
  GloSoundRecord sound;
  ASSERT_TRUE(loaded.getSound(10, sound));
  EXPECT_EQ(sound.text1, u"sound");
  // Word 11's sound is absent, so the index gives it no offset.
  EXPECT_FALSE(loaded.getSound(11, sound));
  EXPECT_EQ(loaded.fns.size(), 7u);
}

TEST_F(GlossaryFile, LoadStopsAtTheFirstMissingTable) {
  ASSERT_TRUE(saved.save(false, {}));
  std::filesystem::remove(saved.folder + "t_Glo_Cloud1600.set");
  EXPECT_FALSE(loaded.load(saved.folder));
  EXPECT_EQ(loaded.links.size(), 3u);
  EXPECT_TRUE(loaded.sounds.empty());
  EXPECT_TRUE(loaded.letters.empty());

  // A damaged table after it is not reached either; the ones before it load.
  ASSERT_TRUE(saved.save(false, {}));
  testing::TempDir cut;
  std::filesystem::copy(saved.folder, cut.path());
  const std::string comments = cut.Read("t_Glo_Comments.set");
  cut.Write("t_Glo_Comments.set", comments.substr(0, comments.size() - 3));
  CGloV6 partly;
  EXPECT_FALSE(partly.load(cut.path()));
  EXPECT_EQ(partly.translations.size(), 3u);
  EXPECT_TRUE(partly.sorted.empty());
  WordBuckets buckets;
  EXPECT_FALSE(partly.getWordsByLetter(buckets, 0, 0, 0, 0, 0));
}

TEST_F(GlossaryFile, SaveGoesWhereSetFolderPoints) {
  saved.setFolder(dir.path() + "elsewhere");
  EXPECT_EQ(saved.folder, dir.path() + "elsewhere/");
  std::filesystem::create_directories(saved.folder);
  EXPECT_TRUE(saved.save(false, {}));
  EXPECT_TRUE(loaded.load(saved.folder));
}

TEST_F(GlossaryFile, QualityListKeepsWordsWithoutMediaOutOfTheIndex) {
  testing::TempDir media;
  media.Write("glo/Q2/000/10.swf", "");
  saved.setFolder(media.path() + "glo");
  ASSERT_TRUE(saved.save(true, {2}));
  ASSERT_TRUE(loaded.load(saved.folder));
  EXPECT_TRUE(loaded.hasSound(10));
  // The reco of word 10 needs the same file, which exists; with a second quality it does not.
  EXPECT_TRUE(loaded.hasReco(10));
  ASSERT_TRUE(saved.save(true, {2, 3}));
  CGloV6 strict;
  ASSERT_TRUE(strict.load(saved.folder));
  EXPECT_FALSE(strict.hasSound(10));
  EXPECT_FALSE(strict.hasReco(10));
}

}  // namespace
}  // namespace lumora
