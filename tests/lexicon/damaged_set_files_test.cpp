// Every set-file table kind written, then read back cut short at every length and with every
// byte changed: each damaged copy must fail cleanly (the sanitizer build checks the "cleanly").
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/support/folder_entries.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fixtures/temp_dir.h"
#include "lexicon/filled_lexicon.h"

namespace lumora {
namespace {

template <typename Record>
void ExpectDamagedCopiesFail(std::u16string_view name, std::initializer_list<Record> records) {
  testing::TempDir dir;
  SetTable<Record> table;
  for (const Record& r : records) table.Insert(r);
  ASSERT_TRUE(WriteSetTable(dir.path(), name, SetFamily::kGlossary, table));
  const std::string file = SetFilePath("", name);
  const std::string good = dir.Read(file);
  ASSERT_TRUE(ReadSetTable(dir.path(), name, SetFamily::kGlossary, table));
  ASSERT_EQ(table.size(), records.size());

  for (size_t length = 0; length < good.size(); ++length) {
    dir.Write(file, good.substr(0, length));
    EXPECT_FALSE(ReadSetTable(dir.path(), name, SetFamily::kGlossary, table)) << length;
  }
  for (size_t at = 0; at < good.size(); ++at) {
    for (uint8_t flip : {0x01, 0x80}) {
      std::string changed = good;
      changed[at] = static_cast<char>(changed[at] ^ flip);
      dir.Write(file, changed);
      EXPECT_FALSE(ReadSetTable(dir.path(), name, SetFamily::kGlossary, table)) << at;
    }
  }
}

TEST(DamagedSetFiles, EveryTableKindFailsCutOrChanged) {
  ExpectDamagedCopiesFail<GloFNRecord>(
      u"t_Glo_FNs", {{1, 2, 3, 4, {5, 6}, {7}, 8, 9, 10}, {2, 0, 0, 0, {}, {}, 0, 0, 0}});
  ExpectDamagedCopiesFail<GloWritingRecord>(u"t_Glo_Writings", {{1, u"ab"}, {2, u""}});
  ExpectDamagedCopiesFail<GloLinkRecord>(u"t_Glo_Links", {{1, 2, 3, 4, 5, 6}, {1, 3, 0, 0, 0, 0}});
  ExpectDamagedCopiesFail<GloCloudRecord>(u"t_Glo_Cloud1600", {{1, u"cloud"}});
  GloSoundRecord sound;
  sound.fnId = 4;
  sound.text2 = u"s";
  sound.qualitiesA.push_back(1);
  sound.qualitiesB.push_back(2);
  ExpectDamagedCopiesFail<GloSoundRecord>(u"t_Glo_Sounds", {sound});
  ExpectDamagedCopiesFail<GloRecoRecord>(u"t_Glo_Reco1600", {{1, 2, 3, u"a", u"b"}});
  ExpectDamagedCopiesFail<GloFNTranslationRecord>(u"t_Glo_FNTranslations",
                                                  {{1, 2, u"t"}, {2, 1, u""}});
  ExpectDamagedCopiesFail<GloCommentRecord>(u"t_Glo_Comments", {{1, 2, u"c"}});
  ExpectDamagedCopiesFail<GloFNSortedRecord>(u"t_Glo_FNSorted", {{1, 2}, {2, 1}});
  ExpectDamagedCopiesFail<GloFNLetterRecord>(u"t_Glo_FNLetter", {{u"A", 1, 2, 3}});
}

// A damaged index and a damaged set file behind it: fetches answer false or a record, and
// never read outside what the file holds.
TEST(DamagedSetFiles, FetchThroughDamagedIndexFailsCleanly) {
  testing::TempDir dir;
  SetTable<GloRecoRecord> recos;
  recos.Insert({1, 2, 3, u"a", u"b"});
  recos.Insert({3, 2, 3, u"c", u""});
  FolderCommit commit(dir.path());
  StageIndexedSetTable(commit, dir.path(), u"t_Glo_Reco1600", recos, true, 2, nullptr);
  ASSERT_TRUE(commit.Commit().ok());
  const std::string good = dir.Read("t_Glo_Reco1600.set");
  DWordArray offsets;
  int32_t version = 0;
  ASSERT_TRUE(ReadSetIndex(dir.path(), u"t_Glo_Reco1600", version, offsets));
  ASSERT_EQ(offsets.size(), 4u);
  for (size_t length = 0; length < good.size(); ++length) {
    dir.Write("t_Glo_Reco1600.set", good.substr(0, length));
    GloRecoRecord record;
    EXPECT_FALSE(FetchSetRecord(dir.path(), u"t_Glo_Reco1600", offsets, 3, record)) << length;
    EXPECT_EQ(record.fnId, 0);
  }
}

// Damages each set file of `dir` in turn, every cut and every changed byte, and expects `load`
// to fail on each copy; the good file goes back before the next one is damaged.
void ExpectFamilyLoadFailsOnEveryDamage(testing::TempDir& dir, const std::function<bool()>& load) {
  ASSERT_TRUE(load());
  std::vector<std::string> files;
  for (const FolderEntry& entry : ListFolder(dir.path()).value_or(std::vector<FolderEntry>{})) {
    if (entry.name.ends_with(".set")) files.push_back(entry.name);
  }
  ASSERT_FALSE(files.empty());
  for (const std::string& file : files) {
    const std::string good = dir.Read(file);
    for (size_t length = 0; length < good.size(); ++length) {
      dir.Write(file, good.substr(0, length));
      EXPECT_FALSE(load()) << file << " cut to " << length;
    }
    for (size_t at = 0; at < good.size(); ++at) {
      std::string changed = good;
      changed[at] = static_cast<char>(changed[at] ^ 0x80);
      dir.Write(file, changed);
      EXPECT_FALSE(load()) << file << " changed at " << at;
    }
    dir.Write(file, good);
  }
}

TEST(DamagedSetFiles, GrammarLoadFailsOnEveryDamagedTable) {
  testing::TempDir dir;
  CGramV6 saved = testing::GrammarWithOneOfEach();
  saved.setFolder(dir.path());
  ASSERT_TRUE(saved.save());
  ExpectFamilyLoadFailsOnEveryDamage(dir, [&dir] {
    CGramV6 loaded;
    return loaded.load(dir.path());
  });
}

TEST(DamagedSetFiles, ClassificationLoadFailsOnEveryDamagedTable) {
  testing::TempDir dir;
  Classification saved;
  testing::FillClassificationWithOneOfEach(saved, dir.path());
  ASSERT_TRUE(saved.save());
  ExpectFamilyLoadFailsOnEveryDamage(dir, [&dir] {
    Classification loaded;
    return loaded.load(dir.path());
  });
}

}  // namespace
}  // namespace lumora
