#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_file.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::TextBytes;
using testing::U16;
using testing::U32;
using testing::U8;

// A byte list as stored: the marker 1, the count, the growth step, the bytes.
Bytes StoredByteList(const Bytes& values, uint32_t step = 0) {
  return Concat({U32(1), U32(static_cast<uint32_t>(values.size())), U32(step), values});
}

template <typename Record>
Bytes Stored(Record record, uint32_t schema = 2) {
  return testing::StoreWith([&](Archive& ar) { record.Serialize(ar, schema); });
}

// Reads `bytes` as one record and stores it again: a layout that reads what it writes gives
// the same bytes back.
template <typename Record, uint32_t kSchema = 2>
Bytes Reloaded(const Bytes& bytes) {
  MemoryStream stream(bytes);
  Archive ar(stream, Archive::Mode::kLoad);
  Record record{};
  record.Serialize(ar, kSchema);
  EXPECT_EQ(ar.Available(), 0u);
  return Stored(std::move(record), kSchema);
}

GloSoundRecord Sound(uint16_t id) {
  GloSoundRecord r;
  r.fnId = id;
  r.status = 4;
  r.attrA = 0x0102;
  r.attrB = 9;
  r.text1 = u"a";
  r.text3 = u"cc";
  r.qualitiesA = {1, 3};
  return r;
}

TEST(GlossaryRecords, EachTableStoresItsFieldsInFileOrder) {
  struct Case {
    const char* table;
    Bytes stored;
    Bytes expected;
    std::function<Bytes(const Bytes&)> reload;
  };
  const Case cases[] = {
      {"t_Glo_FNs", Stored(GloFNRecord{0x0102, 7, 8, 9, {1, 2}, {}, 3, 4, 5}),
       Concat({U16(0x0102), U16(7), U16(8), U8(9), U32(2), U32(1), U32(2), U32(0), U8(3), U8(4),
               U16(5)}),
       Reloaded<GloFNRecord>},
      {"t_Glo_Writings", Stored(GloWritingRecord{12, u"ab"}), Concat({U16(12), TextBytes(u"ab")}),
       Reloaded<GloWritingRecord>},
      {"t_Glo_Links", Stored(GloLinkRecord{0x10000, 2, 3, 4, 5, 6}),
       Concat({U32(0x10000), U32(2), U16(3), U16(4), U16(5), U8(6)}), Reloaded<GloLinkRecord>},
      {"t_Glo_Cloud1600", Stored(GloCloudRecord{3, u""}), Concat({U16(3), U32(0)}),
       Reloaded<GloCloudRecord>},
      {"t_Glo_Sounds", Stored(Sound(6)),
       Concat({U16(6), U8(4), U16(0x0102), U8(9), TextBytes(u"a"), TextBytes(u""), TextBytes(u"cc"),
               StoredByteList({1, 3}), StoredByteList({})}),
       Reloaded<GloSoundRecord>},
      {"t_Glo_Sounds schema 1", Stored(Sound(6), 1),
       Concat(
           {U16(6), U8(4), U16(0x0102), U8(9), TextBytes(u"a"), TextBytes(u""), TextBytes(u"cc")}),
       Reloaded<GloSoundRecord, 1>},
      {"t_Glo_Reco1600", Stored(GloRecoRecord{5, 0x0304, 3, u"x", u"yz"}),
       Concat({U16(5), U16(0x0304), U8(3), TextBytes(u"x"), TextBytes(u"yz")}),
       Reloaded<GloRecoRecord>},
      {"t_Glo_FNTranslations", Stored(GloFNTranslationRecord{7, 300, u"t"}),
       Concat({U8(7), U16(300), TextBytes(u"t")}), Reloaded<GloFNTranslationRecord>},
      {"t_Glo_Comments", Stored(GloCommentRecord{300, 7, u"c"}),
       Concat({U16(300), U8(7), TextBytes(u"c")}), Reloaded<GloCommentRecord>},
      {"t_Glo_FNSorted", Stored(GloFNSortedRecord{1, 2}), Concat({U16(1), U16(2)}),
       Reloaded<GloFNSortedRecord>},
      {"t_Glo_FNLetter", Stored(GloFNLetterRecord{u"\u00c9", 4, 5, 6}),
       Concat({TextBytes(u"\u00c9"), U16(4), U16(5), U16(6)}), Reloaded<GloFNLetterRecord>},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(c.stored, c.expected) << c.table;
    EXPECT_EQ(c.reload(c.expected), c.expected) << c.table;
  }
}

TEST(GlossaryRecords, KeysOfSeveralPartsCompareTheFirstPartFirst) {
  SetTable<GloLinkRecord> links;
  links.Insert({2, 1, 0, 0, 0, 0});
  links.Insert({1, 0x10000, 0, 0, 0, 0});
  links.Insert({1, 5, 0, 0, 0, 0});
  std::vector<std::tuple<uint32_t, uint32_t>> link_keys;
  for (const auto& r : links) link_keys.push_back(r.Key());
  EXPECT_EQ(link_keys, (decltype(link_keys){{1, 5}, {1, 0x10000}, {2, 1}}));

  SetTable<GloFNTranslationRecord> translations;
  translations.Insert({2, 1, u""});
  translations.Insert({1, 900, u""});
  EXPECT_EQ(translations.records().front().fnId, 900);

  SetTable<GloCommentRecord> comments;
  comments.Insert({2, 1, u""});
  comments.Insert({1, 200, u""});
  comments.Insert({1, 7, u""});
  std::vector<uint8_t> types;
  for (const auto& r : comments) types.push_back(r.commentType);
  EXPECT_EQ(types, (std::vector<uint8_t>{7, 200, 1}));
}

TEST(GlossaryRecords, OldSoundsFileIsWrittenBackWithTheQualityLists) {
  testing::TempDir dir;
  const Bytes old = Concat({U32(1), U32(1), U16(6), U8(4), U16(0x0102), U8(9), TextBytes(u"a"),
                            TextBytes(u""), TextBytes(u"cc")});
  dir.Write("t_Glo_Sounds.set", std::string(old.begin(), old.end()));
  SetTable<GloSoundRecord> sounds;
  uint32_t version = 0;
  ASSERT_TRUE(ReadSetTable(dir.path(), u"t_Glo_Sounds", SetFamily::kGlossary, sounds, &version));
  EXPECT_EQ(version, 1u);
  ASSERT_TRUE(WriteSetTable(dir.path(), u"t_Glo_Sounds", SetFamily::kGlossary, sounds));
  const Bytes expected =
      Concat({U32(2), U32(1), U16(6), U8(4), U16(0x0102), U8(9), TextBytes(u"a"), TextBytes(u""),
              TextBytes(u"cc"), StoredByteList({}), StoredByteList({})});
  EXPECT_EQ(dir.Read("t_Glo_Sounds.set"), std::string(expected.begin(), expected.end()));
}

}  // namespace
}  // namespace lumora
