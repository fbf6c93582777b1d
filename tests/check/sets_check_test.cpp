#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/grammar_records.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/profile.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

#include "check/check_fixture.h"

namespace lumora {
namespace {

using testing::CheckTest;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kGlossary = "D001/C0000/r0001001/";
constexpr const char* kGrammar = "D001/C0000/r0001002/";

class SetsCheck : public CheckTest {
 protected:
  // Replaces `file` with these records in file order, repeated keys and all, and lists its
  // checksum as a save would.
  template <typename Record>
  void WriteRecords(const std::string& file, std::vector<Record> records) {
    ASSERT_TRUE(WriteSetFile(root() + file, 1, [&records](Archive& ar) {
      ar.WriteU32(static_cast<uint32_t>(records.size()));
      for (Record& record : records) record.Serialize(ar, 1);
    }));
  }
  void List(const std::string& folder, const std::string& key, const std::string& value) {
    ASSERT_TRUE(profile::WriteString(root() + folder + "CRCFile.ini", "Main", key, value));
  }
};

TEST_F(SetsCheck, TheSampleDecodesCleanly) { EXPECT_THAT(Findings("sets"), IsEmpty()); }

// The record count says 322 written forms; the file ends three bytes into the second.
TEST_F(SetsCheck, EveryRecordIsDecodedAndCounted) {
  const uint64_t whole = Report("sets").checked;
  const std::string writings = dir.Read(std::string(kGlossary) + "t_Glo_Writings.set");
  ASSERT_EQ(DecodeU32(reinterpret_cast<const uint8_t*>(writings.data()) + 4), 322u);
  dir.Write(std::string(kGlossary) + "t_Glo_Writings.set", writings.substr(0, 31));

  const CheckReport report = Report("sets");
  EXPECT_THAT(Findings("sets"),
              ElementsAre("error D001/C0000/r0001001/t_Glo_Writings.set: does not load (at byte "
                          "31: the file ends inside record 2 of 322, which starts at byte 28): "
                          "the glossary stops loading here, so this table and the 8 after it "
                          "stay empty"));
  EXPECT_EQ(whole - report.checked, 321u);
}

TEST_F(SetsCheck, RepeatedKeysSayWhichRecordTheLibraryKeeps) {
  WriteRecords<VerbTenseRecord>("Classes/t_Verb_Tense.set",
                                {{1, u"Present", 1}, {2, u"Past", 2}, {1, u"Now", 3}});
  WriteRecords<GrTitlesRecord>(std::string(kGrammar) + "t_Gr_Titles.set",
                               {{1, 14, u"Articles"}, {1, 14, u"The articles"}});
  EXPECT_THAT(Findings("sets"),
              ElementsAre("error Classes/t_Verb_Tense.set: record 3 repeats the key 1 of record "
                          "1: the library keeps record 1",
                          "error D001/C0000/r0001002/t_Gr_Titles.set: record 2 repeats the key "
                          "(1, 14) of record 1: the library keeps record 1"));
}

TEST_F(SetsCheck, MissingRefusedUnlistedAndStrayFiles) {
  List("Classes/", "t_FamSem.set", "0");
  dir.Write("Classes/t_Old.set", std::string("\x01\0\0\0\0\0\0\0", 8));
  std::string bubbles = dir.Read(std::string(kGrammar) + "t_Gr_Bubbles.set");
  bubbles[0] = 2;
  dir.Write(std::string(kGrammar) + "t_Gr_Bubbles.set", bubbles);
  std::filesystem::remove(root() + kGrammar + "t_Gr_Links.set");
  std::filesystem::remove_all(root() + "D002/C0000/r0001002");
  EXPECT_THAT(
      Findings("sets"),
      ElementsAre(
          "warning Classes/t_FamSem.set: has no checksum in CRCFile.ini: a damaged copy would "
          "load unnoticed",
          "warning Classes/t_Old.set: is not one of the classification's tables: the library "
          "never reads it",
          "error D001/C0000/r0001002/t_Gr_Links.set: is missing: the grammar stops loading here, "
          "so this table and the one after it stay empty",
          "error D001/C0000/r0001002/t_Gr_Bubbles.set: does not load (at byte 0: version 2 is "
          "refused: grammar tables take 1 and below): the grammar stops loading here, so this "
          "table stays empty",
          "error D002/C0000/r0001002/: is missing: the discipline has no grammar"));
}

// The glossary reads its sound and recognition tables through their indexes, so what matters
// there is the index and whether its offsets lead to the records.
TEST_F(SetsCheck, IndexesAreCheckedAgainstTheirSetFiles) {
  const std::string sounds_index = std::string(kGlossary) + "t_Glo_Sounds.idx";
  std::string offsets = dir.Read(sounds_index);
  ASSERT_EQ(DecodeU32(reinterpret_cast<const uint8_t*>(offsets.data()) + 4), 8u);
  offsets[4] = 9;
  dir.Write(sounds_index, offsets);
  List(kGlossary, "Version_t_Glo_Reco1600.idx", "100");
  std::filesystem::remove(root() + kGlossary + "t_Glo_Reco1600.set");
  EXPECT_THAT(
      Findings("sets"),
      ElementsAre("error D001/C0000/r0001001/t_Glo_Sounds.idx: has offsets that are not where "
                  "their word's record starts for 1 of its words (the first: word 1 at byte 9): "
                  "the library fetches a wrong record or none for them",
                  "error D001/C0000/r0001001/t_Glo_Reco1600.set: is missing: the library fetches "
                  "its records one at a time through its index, and may get wrong ones or none",
                  "error D001/C0000/r0001001/t_Glo_Reco1600.idx: does not load (CRCFile.ini gives "
                  "it version 100, and indexes of version 100 and above are refused): the "
                  "glossary stops loading here, so this table and the 4 after it stay empty"));
}

}  // namespace
}  // namespace lumora
