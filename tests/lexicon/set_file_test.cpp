#include <lumora/lexicon/set_fields.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/platform/notify.h>
#include <lumora/platform/profile.h>
#include <lumora/platform/write_status.h>
#include <lumora/support/paths.h>
#include <lumora/support/share_file.h>
#include <lumora/support/xcrc_file2.h>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::AsString;
using testing::Bytes;
using testing::Concat;
using testing::U16;
using testing::U32;

struct Word {
  uint16_t id = 0;
  RecordText text;
  uint16_t Key() const { return id; }
  void Serialize(Archive& ar, uint32_t) {
    ar.Io(id);
    IoText(ar, text);
  }
};

Bytes WordBytes(uint16_t id, std::u16string_view text) {
  Bytes bytes = Concat({U16(id), U32(static_cast<uint32_t>(text.size()))});
  for (char16_t unit : text) bytes = Concat({bytes, U16(unit)});
  return bytes;
}

class SetFile : public ::testing::Test {
 protected:
  std::string Path() const { return dir.path() + "t_Words.set"; }
  bool Read(SetFamily family = SetFamily::kGlossary, uint32_t* version = nullptr) {
    return ReadSetTable(dir.path(), u"t_Words", family, table, version);
  }
  std::string Listed(const std::string& key) const {
    return profile::GetString(dir.path() + "CRCFile.ini", "Main", key, "");
  }

  testing::TempDir dir;
  SetTable<Word> table;
};

TEST_F(SetFile, VersionsEachFamilyAccepts) {
  struct Case {
    SetFamily family;
    uint32_t version;
    bool accepted;
  };
  const Case cases[] = {
      {SetFamily::kGlossary, 99, true},         {SetFamily::kGlossary, 100, false},
      {SetFamily::kGlossary, 0xFFFFFFFF, true}, {SetFamily::kGrammar, 0, true},
      {SetFamily::kGrammar, 1, true},           {SetFamily::kGrammar, 2, false},
      {SetFamily::kGrammar, 0x80000000, true},  {SetFamily::kClassification, 1, true},
      {SetFamily::kClassification, 0, false},   {SetFamily::kClassification, 2, false},
  };
  for (const Case& c : cases) {
    dir.Write("t_Words.set", AsString(Concat({U32(c.version), U32(1), WordBytes(7, u"x")})));
    table.Clear();
    uint32_t version = 12345;
    EXPECT_EQ(Read(c.family, &version), c.accepted) << c.version;
    EXPECT_EQ(table.size(), c.accepted ? 1u : 0u) << c.version;
    EXPECT_EQ(version, c.accepted ? c.version : 12345u) << c.version;
  }
}

TEST_F(SetFile, WritesVersionCountAndRecordsInKeyOrderThenRecordsTheChecksum) {
  ASSERT_TRUE(WriteSetTable(dir.path(), u"t_Words", SetFamily::kGrammar, table));
  EXPECT_EQ(dir.Read("t_Words.set"), AsString(Concat({U32(1), U32(0)})));
  EXPECT_EQ(Listed("t_Words.set"),
            std::to_string(static_cast<int32_t>(xCRCFile2::FileChecksum(Path()))));

  table.Insert({5, u"five"});
  table.Insert({3, u""});
  EXPECT_FALSE(table.Insert({5, u"again"}));
  ASSERT_TRUE(WriteSetTable(dir.path(), u"t_Words", SetFamily::kGlossary, table));
  EXPECT_EQ(dir.Read("t_Words.set"),
            AsString(Concat({U32(2), U32(2), WordBytes(3, u""), WordBytes(5, u"five")})));
  EXPECT_FALSE(Listed("DATE_t_Words.set").empty());

  table.Clear();
  ASSERT_TRUE(Read());
  ASSERT_EQ(table.size(), 2u);
  EXPECT_EQ(table.Find(5)->text, u"five");
  EXPECT_EQ(table.Find(4), nullptr);
}

TEST_F(SetFile, FirstRecordOfAKeyStaysAndUnorderedRecordsAreSorted) {
  dir.Write("t_Words.set", AsString(Concat({U32(2), U32(3), WordBytes(9, u"first"),
                                            WordBytes(2, u"two"), WordBytes(9, u"second")})));
  ASSERT_TRUE(Read());
  ASSERT_EQ(table.size(), 2u);
  EXPECT_EQ(table.records()[0].id, 2u);
  EXPECT_EQ(table.Find(9)->text, u"first");
}

TEST_F(SetFile, ChangedOrCutFilesFailBytesAfterTheRecordsDoNot) {
  table.Insert({1, u"one"});
  table.Insert({2, u"two"});
  ASSERT_TRUE(WriteSetTable(dir.path(), u"t_Words", SetFamily::kGlossary, table));
  const std::string good = dir.Read("t_Words.set");
  ASSERT_TRUE(Read());

  std::string changed = good;
  changed[good.size() - 1] ^= 1;
  dir.Write("t_Words.set", changed);
  EXPECT_FALSE(Read());

  // The checksum covers what the records took, as for a reader that stops at the last one.
  dir.Write("t_Words.set", good + "tail");
  EXPECT_TRUE(Read());

  for (size_t length = 0; length < good.size(); ++length) {
    dir.Write("t_Words.set", good.substr(0, length));
    EXPECT_FALSE(Read()) << length;
  }
}

TEST_F(SetFile, UnlistedFileReadsAsGoodAndAbsurdCountsFail) {
  dir.Write("t_Words.set", AsString(Concat({U32(2), U32(1), WordBytes(4, u"four")})));
  EXPECT_TRUE(Read());
  dir.Write("t_Words.set", AsString(Concat({U32(2), U32(0xFFFFFFFF), WordBytes(4, u"four")})));
  EXPECT_FALSE(Read());
  dir.Write("t_Words.set", AsString(Concat({U32(2), U32(1), U16(4), U32(0x7FFFFFFF)})));
  EXPECT_FALSE(Read());
  EXPECT_FALSE(ReadSetTable(dir.path(), u"t_Missing", SetFamily::kGlossary, table));
}

// A refused save leaves the table as it was on disk: the old bytes and their checksum. Only a
// file another process holds is waited for (one message per attempt period); a read-only file
// or a missing folder fails at once, without a message.
TEST_F(SetFile, RefusedSaveKeepsThePreviousFileAndItsChecksum) {
  table.Insert({1, u"one"});
  ASSERT_TRUE(WriteSetTable(dir.path(), u"t_Words", SetFamily::kGlossary, table));
  const std::string old_bytes = dir.Read("t_Words.set");
  const std::string old_checksum = Listed("t_Words.set");
  table.Insert({2, u"two"});

  const ShareFileSettings saved_open = ShareFileRetrySettings();
  ShareFileRetrySettings() = {2, 0, 0};
  int messages = 0;
  const NotifyHandler saved_notify = SetNotifyHandler([&](const std::string&) { ++messages; });
  auto expect_refused = [&](const char* how, int expected_messages) {
    messages = 0;
    EXPECT_FALSE(WriteSetTable(dir.path(), u"t_Words", SetFamily::kGlossary, table)) << how;
    EXPECT_EQ(messages, expected_messages) << how;
    EXPECT_EQ(dir.Read("t_Words.set"), old_bytes) << how;
    EXPECT_EQ(Listed("t_Words.set"), old_checksum) << how;
    EXPECT_FALSE(FileExists(Path() + ".lumora-new")) << how;
  };
  {
    ShareFile reader;
    ASSERT_TRUE(reader.Open(Path(), open_flags::kRead | open_flags::kBinary));
    expect_refused("file held by a reader", 2);
  }
  ASSERT_EQ(::chmod(Path().c_str(), 0444), 0);
  expect_refused("read-only file", 0);
  EXPECT_NE(LastWriteFailure().ToString().find("read-only"), std::string::npos);
  ::chmod(Path().c_str(), 0644);
  SetNotifyHandler(saved_notify);
  ShareFileRetrySettings() = saved_open;

  EXPECT_FALSE(WriteSetTable(dir.path() + "missing/", u"t_Words", SetFamily::kGlossary, table));
  EXPECT_EQ(LastWriteFailure().osError(), ENOENT);
}

}  // namespace
}  // namespace lumora
