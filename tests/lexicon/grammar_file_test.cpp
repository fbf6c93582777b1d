#include <lumora/lexicon/grammar.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/support/paths.h>
#include <lumora/support/share_file.h>

#include <lumora/platform/write_status.h>

#include <gtest/gtest.h>

#include <string>

#include "fixtures/archive_bytes.h"
#include "fixtures/temp_dir.h"
#include "lexicon/filled_lexicon.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::TextBytes;
using testing::U16;
using testing::U32;
using testing::U8;

std::string File(const Bytes& record) {
  const Bytes all = Concat({U32(1), U32(1), record});
  return std::string(all.begin(), all.end());
}

TEST(GrammarFile, EveryTableWritesItsRecordLayoutUnderItsName) {
  testing::TempDir dir;
  CGramV6 g = testing::GrammarWithOneOfEach();
  g.setFolder(dir.path());
  ASSERT_TRUE(g.save());
  const struct {
    const char* file;
    Bytes record;
  } tables[] = {
      {"t_Gr_Points.set", Concat({U16(0x0102), U8(3), U8(1), TextBytes(u"Pt")})},
      {"t_Gr_Titles.set", Concat({U16(0x0203), U8(4), TextBytes(u"T")})},
      {"t_Gr_Pictures.set", Concat({U16(0x0304), U8(5), U8(6)})},
      {"t_Gr_Subpoints.set", Concat({U32(0x01020304), U8(7), U32(0x05060708)})},
      {"t_Gr_Parts.set", Concat({U32(0x0A0B0C0D), U8(1), U8(2), U8(3), U32(0x11121314),
                                 U32(0x21222324), U8(4), U8(5)})},
      {"t_Gr_SubpointTitles.set", Concat({U32(0x31323334), U8(8), TextBytes(u"S")})},
      {"t_Gr_keywords.set", Concat({U32(0x41424344), TextBytes(u"kw")})},
      {"t_Gr_Links.set",
       Concat({U32(0x51525354), U32(0x61626364), U32(0x71727374), U16(0x0809), U8(0x0A)})},
      {"t_Gr_Bubbles.set", Concat({U8(0x0B), U16(0x0C0D), U8(0x0E), U8(0x0F), TextBytes(u"")})},
  };
  for (const auto& table : tables)
    EXPECT_EQ(dir.Read(table.file), File(table.record)) << table.file;
}

TEST(GrammarFile, SavedGrammarLoadsBackWithAFlagByteReadAsOne) {
  testing::TempDir dir;
  CGramV6 saved = testing::GrammarWithOneOfEach();
  saved.setFolder(dir.path());
  ASSERT_TRUE(saved.save());
  // A damaged flag byte still means "set"; rewrite the file so its checksum stays unlisted.
  dir.Write("CRCFile.ini", "");
  dir.Write("t_Gr_Points.set", File(Concat({U16(0x0102), U8(3), U8(7), TextBytes(u"Pt")})));

  CGramV6 loaded;
  ASSERT_TRUE(loaded.load(dir.path().substr(0, dir.path().size() - 1)));
  EXPECT_EQ(loaded.folder, dir.path());
  EXPECT_EQ(loaded.points.Find(0x0102)->flag, 1);
  EXPECT_EQ(loaded.parts.Find({0x0A0B0C0D, 1, 2})->attrE, 0x21222324u);
  EXPECT_EQ(loaded.links.Find({0x51525354, 0x61626364, 0x71727374})->attrB, 0x0A);
  EXPECT_EQ(loaded.bubbles.size(), 1u);
  EXPECT_EQ(loaded.keywords.Find(0x41424344)->keyword, u"kw");
}

TEST(GrammarFile, LoadStopsAtTheFirstFailingTable) {
  testing::TempDir dir;
  CGramV6 saved = testing::GrammarWithOneOfEach();
  saved.setFolder(dir.path());
  ASSERT_TRUE(saved.save());
  // Version 2 is newer than any grammar this library reads.
  dir.Write("CRCFile.ini", "");
  dir.Write("t_Gr_Subpoints.set", std::string("\x02\0\0\0\0\0\0\0", 8));

  CGramV6 loaded;
  EXPECT_FALSE(loaded.load(dir.path()));
  EXPECT_EQ(loaded.pictures.size(), 1u);
  EXPECT_TRUE(loaded.subpoints.empty());
  EXPECT_TRUE(loaded.parts.empty());
  EXPECT_TRUE(loaded.bubbles.empty());

  CGramV6 missing;
  EXPECT_FALSE(missing.load(dir.path() + "nowhere"));
  EXPECT_EQ(missing.folder, dir.path() + "nowhere/");
}

// One table that cannot be replaced stops the whole save before anything is written.
TEST(GrammarFile, SaveWritesNothingWhenOneTableCannotBeReplaced) {
  testing::TempDir dir;
  ASSERT_TRUE(CreateFolderPath(dir.path() + "t_Gr_Subpoints.set/"));
  CGramV6 g = testing::GrammarWithOneOfEach();
  g.setFolder(dir.path());
  EXPECT_FALSE(g.save());
  EXPECT_EQ(LastWriteFailure().path(), dir.path() + "t_Gr_Subpoints.set");
  EXPECT_FALSE(FileExists(dir.path() + "t_Gr_Points.set"));
  EXPECT_FALSE(FileExists(dir.path() + "CRCFile.ini"));
}

}  // namespace
}  // namespace lumora
