// The glossary an export carries: which links and words it keeps, where their sound files come
// from and go, and what it reports. Sources are saved and read back, whole or through their
// sound index, as a discipline would hold them.
#include <lumora/lexicon/glossary.h>
#include <lumora/packages/partial_lexicon.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "fixtures/temp_dir.h"
#include "resources/types/video_type_builders.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;

template <typename Record>
std::vector<typename SetTable<Record>::Key> Keys(const SetTable<Record>& table) {
  std::vector<typename SetTable<Record>::Key> keys;
  for (const Record& record : table) keys.push_back(record.Key());
  return keys;
}

// The saved glossary is read through its index, so its sounds and recos are found by asking.
template <typename Record>
std::vector<uint16_t> Fetchable(const CGloV6& g, bool (CGloV6::*get)(uint16_t, Record&) const) {
  std::vector<uint16_t> found;
  Record record;
  for (uint16_t fnId = 1; fnId < 2000; ++fnId) {
    if ((g.*get)(fnId, record)) found.push_back(fnId);
  }
  return found;
}

GloFNRecord Word(uint16_t fnId) {
  GloFNRecord fn;
  fn.fnId = fnId;
  fn.writingId = fnId + 100;
  fn.kind = GloFNRecord::kEntryKind;
  return fn;
}

GloSoundRecord Sound(uint16_t fnId) {
  GloSoundRecord sound;
  sound.fnId = fnId;
  sound.status = GloSoundRecord::kPresentStatus;
  return sound;
}

TEST(LessonNumbers, KeepsSmallValuesAndNumbersResourcesByTheirLessonBits) {
  const uint32_t lesson_123 = 123u << 11;  // course 0, lesson bits 123, number bits 0
  const uint32_t other_course = (7u << 20) | (5u << 11) | 0x7FF;
  EXPECT_EQ(LessonNumbers({0, 4095, 4096, lesson_123, other_course}),
            (std::set<uint32_t>{0, 2, 5, 4095, 10023}));
  EXPECT_TRUE(LessonNumbers({}).empty());
}

// The source glossary:
//   links  from 999, 1000, 10000, 10001, lesson 2 and lesson 10023 name words 13, 11, 12, 14,
//          15 and 16 (attrC 1); a link from 1001 names word 17 with attrC 0 and carries
//          writing 30 and sound 1234 in its own fields;
//   words  11 to 17, written forms 111 to 117; comments of 11 and 13, translations of 11 in
//          two languages and of 13; sounds of 11, 13, 15 and 1234; recos of 11, 13 and 1234;
//          clouds of 13 and 20.
class PartialGlossary : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    CGloV6 g;
    g.language = 15;
    for (uint16_t fnId = 11; fnId <= 17; ++fnId) {
      g.fns.Insert(Word(fnId));
      g.writings.Insert({static_cast<uint16_t>(fnId + 100), u"word"});
    }
    g.writings.Insert({30, u"linked"});
    const std::pair<uint32_t, uint16_t> named[] = {{999, 13},   {1000, 11}, {10000, 12},
                                                   {10001, 14}, {2, 15},    {10023, 16}};
    for (const auto& [from, word] : named) g.links.Insert({from, word, 0, 0, word, 1});
    g.links.Insert({1001, 17, 30, 1234, 17, 0});
    g.comments.Insert({11, 1, u"a"});
    g.comments.Insert({11, 7, u"b"});
    g.comments.Insert({13, 1, u"c"});
    g.translations.Insert({1, 11, u"one"});
    g.translations.Insert({2, 11, u"eins"});
    g.translations.Insert({1, 13, u"three"});
    for (uint16_t fnId : {11, 13, 15, 1234}) g.sounds.Insert(Sound(fnId));
    for (uint16_t fnId : {11, 13, 1234}) {
      g.recos.Insert({fnId, 0, GloRecoRecord::kPresentStatus, u"", u""});
    }
    g.clouds.Insert({13, u"cloud"});
    g.clouds.Insert({20, u"cloud"});
    g.setFolder(dir.path() + "source");
    ASSERT_TRUE(fs::create_directories(g.folder));
    ASSERT_TRUE(g.save(GetParam(), {}));
    ASSERT_TRUE(source.load(g.folder));
    source.language = g.language;
    ASSERT_EQ(source.sounds.empty(), GetParam()) << "read through the index or whole";
    ASSERT_TRUE(fs::create_directories(exported));
  }

  // Exports lessons 2 and 10023 (from resource identifiers) into `exported` and reads the
  // result back.
  bool Export(const ByteArray& qualities) {
    const bool result =
        ExportPartialGlossary(source, {4096, 123u << 11}, qualities, exported, report);
    EXPECT_TRUE(partial.load(exported));
    return result;
  }

  std::string SourceFile(const std::string& name) { return dir.Write("source/" + name, name); }

  testing::TempDir dir;
  CGloV6 source;
  const std::string exported = dir.path() + "export/";
  CGloV6 partial;
  std::string report;
};

TEST_P(PartialGlossary, KeepsTheGeneralAndLessonLinksAndTheWordsTheyReach) {
  EXPECT_TRUE(Export({}));
  EXPECT_EQ(report, "");
  using LinkKey = std::tuple<uint32_t, uint32_t>;
  EXPECT_EQ(Keys(partial.links),
            (std::vector<LinkKey>{{2, 15}, {1000, 11}, {1001, 17}, {10000, 12}, {10023, 16}}));
  // Word 17 is named with attrC 0, so only the link's own writing and sound come along.
  EXPECT_EQ(Keys(partial.fns), (std::vector<uint16_t>{11, 12, 15, 16}));
  EXPECT_EQ(Keys(partial.writings), (std::vector<uint16_t>{30, 111, 112, 115, 116}));
  EXPECT_EQ(Fetchable(partial, &CGloV6::getSound), (std::vector<uint16_t>{11, 15, 1234}));
  EXPECT_EQ(Fetchable(partial, &CGloV6::getReco), (std::vector<uint16_t>{11, 1234}));
  EXPECT_EQ(Keys(partial.clouds), (std::vector<uint16_t>{13, 20}));
  EXPECT_EQ(Keys(partial.comments), (std::vector<std::tuple<uint16_t, uint8_t>>{{11, 1}, {11, 7}}));
  EXPECT_EQ(Keys(partial.translations),
            (std::vector<std::tuple<uint8_t, uint16_t>>{{1, 11}, {2, 11}}));
  // The order and letters are rebuilt over the words kept.
  std::set<uint16_t> sorted;
  for (const GloFNSortedRecord& r : partial.sorted) sorted.insert(r.fnId);
  EXPECT_EQ(sorted, (std::set<uint16_t>{11, 12, 15, 16}));
  EXPECT_FALSE(partial.letters.empty());
  EXPECT_FALSE(fs::exists(exported + "Q1"));
}

TEST_P(PartialGlossary, CopiesSoundFilesPerQualityAndReportsTheMissingOnes) {
  for (const char* name : {"Q2/000/11.swf", "Q1/000/11.swf", "Q2/000/15.swf", "Q2/012/34.swf"}) {
    SourceFile(name);
  }
  EXPECT_TRUE(Export(testing::QualityFolderList({2, 1})))
      << "a missing sound file does not fail the export";
  const std::string from = source.folder;
  EXPECT_EQ(report, from + "Q1/000/15.swf is missing.\n" + from + "Q1/012/34.swf is missing.\n");
  for (const char* name : {"Q2/000/11.swf", "Q1/000/11.swf", "Q2/000/15.swf", "Q2/012/34.swf"}) {
    EXPECT_EQ(dir.Read(std::string("export/") + name), name);
  }
  // The index lists the words whose sound is there in every exported quality.
  EXPECT_TRUE(partial.hasSound(11));
  EXPECT_FALSE(partial.hasSound(15));
  EXPECT_FALSE(partial.hasSound(1234));
}

TEST_P(PartialGlossary, FailedFoldersAndCopiesAreReportedButTheGlossaryIsSaved) {
  SourceFile("Q2/000/11.swf");
  dir.Write("export/Q2", "a file where the quality folder should be");
  EXPECT_FALSE(Export(testing::QualityFolderList({2})));
  const std::string from = source.folder;
  EXPECT_EQ(report, "Can not create directory : " + exported +
                        "Q2/000/\nCan not copy file: " + from + "Q2/000/11.swf\n" + from +
                        "Q2/000/15.swf is missing.\n" + from + "Q2/012/34.swf is missing.\n");
  EXPECT_EQ(partial.fns.size(), 4u);
}

TEST_P(PartialGlossary, AFolderThatCannotBeSavedIntoFailsWithoutALineEnd) {
  dir.Write("blocked", "a file where the export folder should be");
  EXPECT_FALSE(ExportPartialGlossary(source, {2}, {}, dir.path() + "blocked/glossary/", report));
  EXPECT_EQ(report, "Cannot save the files of the partial glossary");
}

INSTANTIATE_TEST_SUITE_P(SourceReadWholeOrByIndex, PartialGlossary, ::testing::Bool());

}  // namespace
}  // namespace lumora
