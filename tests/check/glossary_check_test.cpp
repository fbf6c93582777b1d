#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/notify.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr uint32_t kNone = 0xFFFFFFFF;

class GlossaryCheck : public CheckTest {
 protected:
  static std::string Folder(int discipline) {
    return "D00" + std::to_string(discipline) + "/C0000/r0001001/";
  }

  // Loads the sample glossary of `discipline`, one read without indexes, lets `change` edit it
  // and saves it through the library.
  void ChangeGlossary(int discipline, uint8_t language,
                      const std::function<void(CGloV6&)>& change) {
    CGloV6 g;
    ASSERT_TRUE(g.load(root() + Folder(discipline)));
    g.language = language;
    change(g);
    ASSERT_TRUE(g.save(false, {}));
  }

  // Sets the sound index entry of `word` in the indexed glossary.
  void SetSoundOffset(uint32_t word, uint32_t offset) {
    const std::string name = Folder(1) + "t_Glo_Sounds.idx";
    std::string bytes = dir.Read(name);
    ASSERT_LT(4 * word + 4, bytes.size());
    EncodeU32(reinterpret_cast<uint8_t*>(bytes.data() + 4 * word), offset);
    dir.Write(name, bytes);
  }
  uint32_t SoundOffset(uint32_t word) const {
    const std::string bytes = dir.Read(Folder(1) + "t_Glo_Sounds.idx");
    return DecodeU32(reinterpret_cast<const uint8_t*>(bytes.data() + 4 * word));
  }
};

TEST_F(GlossaryCheck, TheSampleGlossariesAgreeWithTheirIndexesTheirMediaAndARebuild) {
  const CheckReport report = Report("glossary");
  EXPECT_THAT(report.findings, IsEmpty());
  EXPECT_GT(report.checked, 3000u);
}

// The load stops at the first table that fails: at the first one nothing is held, at a later
// one the tables before it are; either way the rest of the glossary goes unchecked.
TEST_F(GlossaryCheck, AGlossaryThatStopsLoadingIsOneFinding) {
  std::filesystem::remove(root() + Folder(2) + "t_Glo_FNs.set");
  const std::string sorted = dir.Read(Folder(3) + "t_Glo_FNSorted.set");
  dir.Write(Folder(3) + "t_Glo_FNSorted.set", sorted.substr(0, sorted.size() - 2));
  EXPECT_THAT(Findings("glossary"),
              ElementsAre("error D002/C0000/r0001001/: the glossary does not load (table "
                          "t_Glo_FNs fails; the sets check says why): the library answers every "
                          "glossary query as empty",
                          "error D003/C0000/r0001001/: the glossary stops loading at table "
                          "t_Glo_FNSorted (the sets check says why): that table and the ones "
                          "after it stay empty"));
}

// Words without a letter or beyond the letter table, a link and an order entry naming words
// that do not exist; the stored order and letters then also differ from a rebuild.
TEST_F(GlossaryCheck, LinksOrderAndLettersNameWhatTheGlossaryHolds) {
  ChangeGlossary(2, 18, [](CGloV6& g) {
    g.fns.Find(1)->letterId = 0;
    g.fns.Find(2)->letterId = 99;
    g.links.Insert({10001, 900, 1, 0, 900, 1});
    g.sorted.Find(5)->fnId = 999;
  });
  EXPECT_THAT(
      Findings("glossary"),
      ElementsAre(
          "error D002/C0000/r0001001/t_Glo_FNs.set: word 1 (\"das Brot\") has no letter: the "
          "letter and text searches never list it",
          "error D002/C0000/r0001001/t_Glo_FNs.set: word 2 (\"das Baguette\") has letter 99, "
          "beyond the 23 letters of t_Glo_FNLetter: the letter and text searches never list it",
          "error D002/C0000/r0001001/t_Glo_Links.set: the link from 10001 to 900 names word 900, "
          "which t_Glo_FNs lacks: the searches over the words of 10001 and its exports leave it "
          "out",
          "error D002/C0000/r0001001/t_Glo_FNSorted.set: position 5 names word 999, which "
          "t_Glo_FNs lacks: the letter and text searches skip it",
          "error D002/C0000/r0001001/t_Glo_FNSorted.set: differs from a rebuild from the written "
          "forms (316 positions stored, 316 rebuilt; position 5 holds word 999, the rebuild word "
          "240): lumora glossary resort --write saves the rebuilt order",
          "error D002/C0000/r0001001/t_Glo_FNs.set: 2 headwords have another letter than a "
          "rebuild from the written forms gives them (word 1 has letter 0, the rebuild 2): lumora "
          "glossary resort --write saves the rebuilt letters"));
}

// Offsets that point at another word's record, at no record or at a record that is not
// present, and a present record without an offset; a set file that does not read.
TEST_F(GlossaryCheck, EveryOffsetPointsAtItsWordsRecord) {
  const std::string set = dir.Read(Folder(1) + "t_Glo_Sounds.set");
  // Word 8 is announced but not recorded: fnId 8, status 0, attrA 7, attrB 0.
  const size_t word8 = set.find(std::string("\x08\x00\x00\x07\x00\x00", 6), 8);
  ASSERT_NE(word8, std::string::npos);
  SetSoundOffset(1, SoundOffset(2));
  SetSoundOffset(2, kNone);
  SetSoundOffset(4, 8);
  SetSoundOffset(8, static_cast<uint32_t>(word8));
  // Words 4 and 8 now claim a sound; their files are there, so that only the index is at fault.
  for (const char* file : {"000/04.swf", "000/08.swf"}) {
    for (const char* quality : {"Q1/", "Q2/", "Q3/"}) dir.Write(Folder(1) + quality + file, "s");
  }
  const std::string recos = dir.Read(Folder(1) + "t_Glo_Reco1600.set");
  dir.Write(Folder(1) + "t_Glo_Reco1600.set", recos.substr(0, 100));
  EXPECT_THAT(
      Findings("glossary"),
      ElementsAre(
          "error D001/C0000/r0001001/t_Glo_Sounds.idx: gives word 1 byte 65, but its record in "
          "t_Glo_Sounds.set starts at byte 8: the library reads the wrong bytes for it",
          "error D001/C0000/r0001001/t_Glo_Sounds.idx: gives word 4 byte 8, but t_Glo_Sounds.set "
          "holds no record of it: the library reads whatever lies there",
          "error D001/C0000/r0001001/t_Glo_Sounds.idx: gives word 8 an offset, but its record's "
          "status is 0, not 4: the library says word 8 has a sound",
          "error D001/C0000/r0001001/t_Glo_Sounds.idx: gives word 2 no offset, though its record "
          "in t_Glo_Sounds.set has status 4 and its sound files are in every quality folder "
          "checked: the library says it has no sound",
          "error D001/C0000/r0001001/t_Glo_Reco1600.set: does not read (at byte 8: stored count "
          "too large): the records the library fetches through t_Glo_Reco1600.idx fail or come "
          "out wrong"));
}

TEST_F(GlossaryCheck, TheSoundsTheGlossaryClaimsAreInEveryQualityFolder) {
  std::filesystem::remove(root() + Folder(1) + "Q1/000/01.swf");
  std::filesystem::remove_all(root() + Folder(1) + "Q3");
  EXPECT_THAT(Findings("glossary"),
              ElementsAre("error D001/C0000/r0001001/Q1/000/01.swf: is missing, though the "
                          "glossary says word 1 has a sound",
                          "error D001/C0000/r0001001/Q3/: does not exist, though the glossary "
                          "says 242 words have a sound"));
}

// The check's own rebuild shows nothing: the written form is reported instead.
TEST_F(GlossaryCheck, ParenthesesThatDoNotPairUpAreReportedNotShown) {
  ChangeGlossary(3, 15, [](CGloV6& g) {
    *g.writings.Find(g.fns.Find(1)->writingId) = {g.fns.Find(1)->writingId, u"(the bread"};
    const NotifyHandler previous = SetNotifyHandler([](const std::string&) {});
    ASSERT_TRUE(rebuildSortAndLetters(g));
    SetNotifyHandler(previous);
  });
  const NotifyHandler previous =
      SetNotifyHandler([](const std::string& text) { ADD_FAILURE() << "shown: " << text; });
  EXPECT_THAT(Findings("glossary"),
              ElementsAre("warning D003/C0000/r0001001/t_Glo_Writings.set: word 1 "
                          "(\"(the bread\") has parentheses that do not pair up: every rebuild "
                          "of the order (each export) shows the host a message about it"));
  SetNotifyHandler(previous);
}

}  // namespace
}  // namespace lumora
