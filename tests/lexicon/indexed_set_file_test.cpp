#include <lumora/lexicon/indexed_set_file.h>
#include <lumora/platform/profile.h>
#include <lumora/support/xcrc_file2.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::AsString;
using testing::Bytes;
using testing::Concat;
using testing::U32;

constexpr uint32_t kNone = kNoRecordOffset;

Bytes Index(std::initializer_list<uint32_t> entries) {
  Bytes bytes;
  for (uint32_t e : entries) bytes = Concat({bytes, U32(e)});
  return bytes;
}

GloSoundRecord Sound(uint16_t id, uint8_t status) {
  GloSoundRecord r;
  r.fnId = id;
  r.status = status;
  r.text1 = u"word";
  r.qualitiesB.push_back(id);
  return r;
}

size_t StoredSize(GloSoundRecord record) {
  return testing::StoreWith([&](Archive& ar) { record.Serialize(ar, 2); }).size();
}

class IndexedSetFile : public ::testing::Test {
 protected:
  std::string Listed(const std::string& key) const {
    return profile::GetString(dir.path() + xCRCFile2::kListName, "Main", key, "");
  }
  bool Save(bool with_index, int32_t index_version = 2, const ByteArray* qualities = nullptr) {
    FolderCommit commit(dir.path());
    StageIndexedSetTable(commit, dir.path(), u"t_Glo_Sounds", sounds, with_index, index_version,
                         qualities);
    return commit.Commit().ok();
  }
  bool Load(bool with_index) {
    return LoadIndexedSetTable(dir.path(), u"t_Glo_Sounds", with_index, sounds, indexVersion,
                               offsets)
        .ok();
  }

  testing::TempDir dir;
  SetTable<GloSoundRecord> sounds;
  int32_t indexVersion = 2;
  DWordArray offsets;
};

TEST_F(IndexedSetFile, IndexVersionIsOneUntilASaveRecordsTwo) {
  EXPECT_EQ(ReadSetIndexVersion(dir.path(), u"t_Glo_Sounds"), 1);
  sounds.Insert(Sound(3, 4));
  ASSERT_TRUE(Save(false));
  EXPECT_EQ(Listed("Version_t_Glo_Sounds.idx"), "2");
  EXPECT_EQ(ReadSetIndexVersion(dir.path(), u"t_Glo_Sounds"), 2);
  EXPECT_EQ(ReadSetIndexVersion(dir.path(), u"t_Glo_Reco1600"), 1);
}

TEST_F(IndexedSetFile, IndexGivesEachUsableRecordItsOffset) {
  const size_t after_first = 8 + StoredSize(Sound(3, 4));
  const uint32_t second = static_cast<uint32_t>(after_first);
  dir.Write("Q1/000/03.swf", "");
  dir.Write("Q2/000/03.swf", "");
  dir.Write("Q1/000/05.swf", "");
  ByteArray both;
  both.Add(1);
  both.Add(2);
  ByteArray none;
  struct Case {
    const char* what;
    uint8_t status5;
    int32_t index_version;
    const ByteArray* qualities;
    Bytes expected;
  };
  const Case cases[] = {
      {"no quality list", 4, 2, nullptr, Index({kNone, kNone, kNone, 8, kNone, second})},
      {"empty quality list", 4, 2, &none, Index({kNone, kNone, kNone, 8, kNone, second})},
      {"status not present", 1, 2, nullptr, Index({kNone, kNone, kNone, 8, kNone, kNone})},
      {"media missing in Q2", 4, 2, &both, Index({kNone, kNone, kNone, 8, kNone, kNone})},
      {"old index lists all", 1, 1, &both, Index({kNone, kNone, kNone, 8, kNone, second})},
  };
  for (const Case& c : cases) {
    sounds.Clear();
    sounds.Insert(Sound(5, c.status5));
    sounds.Insert(Sound(3, 4));
    ASSERT_TRUE(Save(true, c.index_version, c.qualities)) << c.what;
    EXPECT_EQ(dir.Read("t_Glo_Sounds.idx"), AsString(c.expected)) << c.what;
    // Unusable records are still in the set file.
    EXPECT_EQ(dir.Read("t_Glo_Sounds.set").size(), after_first + StoredSize(Sound(5, 4)));
  }
  // Both files are checksummed and the index is marked as following these rules.
  EXPECT_EQ(Listed("t_Glo_Sounds.idx"), std::to_string(static_cast<int32_t>(xCRCFile2::FileChecksum(
                                            dir.path() + "t_Glo_Sounds.idx"))));
  EXPECT_FALSE(Listed("t_Glo_Sounds.set").empty());
  EXPECT_EQ(Listed("Version_t_Glo_Sounds.idx"), "2");
}

TEST_F(IndexedSetFile, WordsZeroAndLastNeverGetAnOffset) {
  EXPECT_FALSE(IsIndexableRecord(dir.path(), 0, true, 1, nullptr));
  EXPECT_FALSE(IsIndexableRecord(dir.path(), 0xFFFF, true, 1, nullptr));
  EXPECT_TRUE(IsIndexableRecord(dir.path(), 0xFFFE, false, 1, nullptr));
  EXPECT_EQ(QualityFilePath(dir.path(), 3, 1234), dir.path() + "Q3/012/34.swf");
}

TEST_F(IndexedSetFile, RecoRecordsArePresentWithStatusThree) {
  SetTable<GloRecoRecord> recos;
  recos.Insert({1, 0, 3, u"", u""});
  recos.Insert({2, 0, 4, u"", u""});
  FolderCommit commit(dir.path());
  StageIndexedSetTable(commit, dir.path(), u"t_Glo_Reco1600", recos, true, 2, nullptr);
  ASSERT_TRUE(commit.Commit().ok());
  EXPECT_EQ(dir.Read("t_Glo_Reco1600.idx"), AsString(Index({kNone, 8, kNone})));
  EXPECT_EQ(Listed("Version_t_Glo_Reco1600.idx"), "2");
}

TEST_F(IndexedSetFile, EmptyTableWritesHeaderAndEmptyIndex) {
  ASSERT_TRUE(Save(true));
  EXPECT_EQ(dir.Read("t_Glo_Sounds.set"), AsString(Concat({U32(2), U32(0)})));
  EXPECT_EQ(dir.Read("t_Glo_Sounds.idx"), "");
  // An empty index, or one shorter than an entry, reads as no offsets (the sanitizer build
  // once found the empty one copied from nowhere).
  for (const char* index : {"", "\x01\x02"}) {
    dir.Write("t_Glo_Sounds.idx", index);
    ASSERT_TRUE(Load(false));
    EXPECT_EQ(offsets.size(), 0u);
  }
}

TEST_F(IndexedSetFile, PresentIndexIsReadInsteadOfTheRecords) {
  sounds.Insert(Sound(3, 4));
  sounds.Insert(Sound(5, 4));
  ASSERT_TRUE(Save(true));
  sounds.Clear();
  indexVersion = 7;
  ASSERT_TRUE(Load(false));
  EXPECT_TRUE(sounds.empty());
  EXPECT_EQ(indexVersion, 2);
  ASSERT_EQ(offsets.size(), 6u);

  GloSoundRecord record;
  ASSERT_TRUE(FetchSetRecord(dir.path(), u"t_Glo_Sounds", offsets, 5, record));
  EXPECT_EQ(record.fnId, 5);
  ASSERT_EQ(record.qualitiesB.size(), 1u);
  EXPECT_EQ(record.qualitiesB[0], 5);

  ASSERT_TRUE(Load(true));
  EXPECT_EQ(sounds.size(), 2u);
}

TEST_F(IndexedSetFile, IndexReadsCompleteEntriesAndRefusesVersion100) {
  dir.Write("t_Glo_Sounds.idx", AsString(Concat({Index({kNone, 8}), {1, 2}})));
  ASSERT_TRUE(Load(false));
  EXPECT_EQ(indexVersion, 1);
  ASSERT_EQ(offsets.size(), 2u);
  EXPECT_EQ(offsets[1], 8u);

  const std::string list = dir.path() + xCRCFile2::kListName;
  ASSERT_TRUE(profile::WriteString(list, "Main", "Version_t_Glo_Sounds.idx", "100"));
  EXPECT_FALSE(Load(false));
  EXPECT_EQ(indexVersion, 1);
  EXPECT_EQ(offsets.size(), 2u);
  ASSERT_TRUE(profile::WriteString(list, "Main", "Version_t_Glo_Sounds.idx", "99"));
  EXPECT_TRUE(Load(false));
  EXPECT_EQ(indexVersion, 99);
}

TEST_F(IndexedSetFile, FetchStaysWithinWordsAndIndexAndFile) {
  const Bytes record = testing::StoreWith([](Archive& ar) { Sound(1, 4).Serialize(ar, 2); });
  dir.Write("t_Glo_Sounds.set", AsString(Concat({U32(2), U32(1), record})));
  offsets.SetSize(0x10000);
  for (uint32_t i = 0; i < offsets.size(); ++i) offsets[i] = 8;
  offsets[2] = kNone;
  offsets[3] = static_cast<uint32_t>(8 + record.size() - 2);  // a record cut short
  offsets[4] = 1000;
  struct Case {
    uint32_t word;
    bool fetched;
  };
  const Case cases[] = {{0, false}, {1, true},     {2, false},     {3, false},
                        {4, false}, {65534, true}, {65535, false}, {0x10000, false}};
  for (const Case& c : cases) {
    GloSoundRecord fetched = Sound(42, 0);
    EXPECT_EQ(FetchSetRecord(dir.path(), u"t_Glo_Sounds", offsets, c.word, fetched), c.fetched)
        << c.word;
    EXPECT_EQ(fetched.fnId, c.fetched ? 1 : 42) << c.word;
  }
  offsets.SetSize(2);
  GloSoundRecord fetched;
  EXPECT_FALSE(FetchSetRecord(dir.path(), u"t_Glo_Sounds", offsets, 2, fetched));
  EXPECT_FALSE(FetchSetRecord(dir.path(), u"t_Glo_Missing", offsets, 1, fetched));
}

}  // namespace
}  // namespace lumora
