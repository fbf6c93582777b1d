#include <lumora/lexicon/class_match.h>
#include <lumora/lexicon/classification.h>
#include <lumora/support/language_table.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "lexicon/filled_lexicon.h"

namespace lumora {
namespace {

using testing::AsString;
using testing::Bytes;
using testing::Concat;
using testing::TextBytes;
using testing::U16;
using testing::U32;

TEST(ClassMatches, QueriesMatchTheirOwnBlockAtOrAboveThemselves) {
  struct Case {
    uint32_t candidate;
    uint32_t query;
    bool matches;
  };
  const Case cases[] = {
      // Top level: the whole ten-thousand block from the query up.
      {30000, 30000, true},
      {39999, 30000, true},
      {30101, 30000, true},
      {40000, 30000, false},
      {29999, 30000, false},
      {5, 0, true},
      {10000, 0, false},
      {0xFFFFFFFF, 4294960000u, true},
      // Second level: the hundred block from the query up.
      {30100, 30100, true},
      {30199, 30100, true},
      {30200, 30100, false},
      {30099, 30100, false},
      // Leaf: only itself, even within its hundred block.
      {30101, 30101, true},
      {30102, 30101, false},
      {30100, 30101, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(classMatches(c.candidate, c.query), c.matches) << c.candidate << " / " << c.query;
  }
}

TEST(ClassificationLabels, EachLanguageCodeChoosesItsOwnEntryAndEntryZeroNever) {
  Classification classification;
  CatGramRecord noun;
  noun.id = 10000;
  for (size_t i = 0; i < kCatGramLanguages; ++i) noun.labels[i] = std::u16string(1, u'0' + i);
  classification.catGram.Insert(noun);

  struct Case {
    const char* code;
    std::u16string label;
  };
  const Case cases[] = {{"ALL", u"3"}, {"AME", u"7"}, {"ANG", u"1"}, {"DUT", u"6"}, {"ESP", u"4"},
                        {"FRA", u"2"}, {"ITA", u"5"}, {"CHS", u"8"}, {"JPN", u"9"}, {"RUS", u""}};
  for (const Case& c : cases) {
    ASSERT_NE(NumberOfCode(c.code), 0) << c.code;
    EXPECT_EQ(classification.getCatGramLabel(NumberOfCode(c.code), 10000), c.label) << c.code;
  }
  EXPECT_EQ(classification.getCatGramLabel(0, 10000), u"");
  EXPECT_EQ(classification.getCatGramLabel(256 + NumberOfCode("JPN"), 10000), u"");
  EXPECT_EQ(classification.getCatGramLabel(NumberOfCode("JPN"), 10001), u"");
}

TEST(ClassificationLabels, MapsGetNarrowLabelsAndValueGettersZeroForAbsentIds) {
  Classification classification;
  classification.famSem.Insert({7, u"Café", 70});
  classification.syntacticFunctions.Insert({0xABCD, u"Subject", 9});
  ClassLabelMap labels{{1, "kept"}, {7, "replaced"}};
  EXPECT_TRUE(classification.getFamSemLabels(labels));
  EXPECT_EQ(labels, (ClassLabelMap{{1, "kept"}, {7, "Caf\xE9"}}));
  EXPECT_FALSE(classification.getUnusedLabels(labels));
  EXPECT_TRUE(labels.empty());

  EXPECT_EQ(classification.getFamSemValue(7), 70);
  EXPECT_EQ(classification.getFamSemValue(8), 0);
  EXPECT_EQ(classification.getSyntacticFunctionValue(0xABCD), 9);
  // A 16-bit table must not answer for an id that only agrees in its low bits.
  EXPECT_EQ(classification.getSyntacticFunctionValue(0x1ABCD), 0);

  classification.errors = {"a", "", "b"};
  EXPECT_EQ(classification.getErrors(), "a\n\nb");
  classification.Clear();
  EXPECT_EQ(classification.getErrors(), "");
  EXPECT_TRUE(classification.famSem.empty());
}

class ClassificationFiles : public ::testing::Test {
 protected:
  // Writes one record per table through save; true when every table was saved.
  bool SaveOneOfEach() {
    testing::FillClassificationWithOneOfEach(saved, dir.path());
    return saved.save();
  }

  testing::TempDir dir;
  Classification saved;
};

TEST_F(ClassificationFiles, EachTableIsWrittenInItsRecordLayoutAndReadBack) {
  CatGramRecord category;
  category.id = 10100;
  category.label = u"N";
  category.value = 7;
  category.labels[9] = u"名";
  struct Case {
    const char* file;
    std::function<void(Classification&)> fill;
    uint32_t count;
    Bytes records;
  };
  const Bytes empty_labels =
      Concat({U32(0), U32(0), U32(0), U32(0), U32(0), U32(0), U32(0), U32(0), U32(0)});
  const Case cases[] = {
      {"t_FamSem.set",
       [](Classification& c) {
         c.famSem.Insert({0x01020304, u"Aé", 0xBEEF});
       },
       1, Concat({U32(0x01020304), TextBytes(u"Aé"), U16(0xBEEF)})},
      {"t_CatGram.set", [&](Classification& c) { c.catGram.Insert(category); }, 1,
       Concat({U32(10100), TextBytes(u"N"), U16(7), empty_labels, TextBytes(u"名")})},
      {"t_GrammarPoint_Category.set",
       [](Classification& c) {
         c.grammarPointCategories.Insert({300, u"", 1});
       },
       1, Concat({U32(300), U32(0), U16(1)})},
      {"t_Verb_Tense.set",
       [](Classification& c) {
         c.verbTenses.Insert({5, u"b", 2});
         c.verbTenses.Insert({2, u"a", 1});
       },
       2, Concat({U32(2), TextBytes(u"a"), U16(1), U32(5), TextBytes(u"b"), U16(2)})},
      {"t_Expression_SyntacticFunction.set",
       [](Classification& c) {
         c.syntacticFunctions.Insert({0xABCD, u"S", 2});
       },
       1, Concat({U16(0xABCD), TextBytes(u"S"), U16(2)})},
  };
  for (const Case& c : cases) {
    Classification classification;
    classification.SetFolder(dir.path());
    c.fill(classification);
    ASSERT_TRUE(classification.save()) << c.file;
    EXPECT_EQ(dir.Read(c.file), AsString(Concat({U32(1), U32(c.count), c.records}))) << c.file;

    // Reading and writing again gives the same bytes: every field was read back.
    Classification loaded;
    ASSERT_TRUE(loaded.load(dir.path())) << c.file;
    loaded.SetFolder(dir.path() + "again");
    std::filesystem::create_directory(loaded.folder);
    ASSERT_TRUE(loaded.save()) << c.file;
    EXPECT_EQ(dir.Read(std::string("again/") + c.file), dir.Read(c.file)) << c.file;
  }
}

TEST_F(ClassificationFiles, OnlyVersionOneLoads) {
  ASSERT_TRUE(SaveOneOfEach());
  const std::string good = dir.Read("t_Verb_Tense.set");
  for (uint32_t version : {0u, 1u, 2u, 0xFFFFFFFFu}) {
    dir.Write("t_Verb_Tense.set", AsString(Concat({U32(version), U32(0)})));
    // A hand-written file is not listed with a checksum, so only its version decides.
    dir.Write("CRCFile.ini", "");
    Classification loaded;
    EXPECT_EQ(loaded.load(dir.path()), version == 1) << version;
  }
}

TEST_F(ClassificationFiles, LoadStopsAtTheFirstFailingTable) {
  ASSERT_TRUE(SaveOneOfEach());
  // A changed byte fails the grammatical categories by their checksum.
  std::string changed = dir.Read("t_CatGram.set");
  changed.back() ^= 1;
  dir.Write("t_CatGram.set", changed);

  Classification loaded;
  loaded.verbTenses.Insert({99, u"before", 0});
  EXPECT_FALSE(loaded.load(dir.path().substr(0, dir.path().size() - 1)));
  EXPECT_EQ(loaded.folder, dir.path());
  EXPECT_EQ(loaded.famSem.size(), 1u);
  EXPECT_EQ(loaded.grammarPointCategories.size(), 0u);
  ASSERT_EQ(loaded.verbTenses.size(), 1u);
  EXPECT_EQ(loaded.verbTenses.records()[0].id, 99u);
  EXPECT_EQ(loaded.syntacticFunctions.size(), 0u);
}

}  // namespace
}  // namespace lumora
