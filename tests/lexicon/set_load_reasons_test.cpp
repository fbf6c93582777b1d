// Loads that fail say which file, which byte and what was wrong there, for the damage that
// content really suffers: files cut short, counts overwritten, versions from elsewhere, bytes
// changed after the checksum was recorded.
#include <lumora/lexicon/classification.h>
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/grammar.h>
#include <lumora/platform/profile.h>
#include <lumora/support/crc32.h>
#include <lumora/support/xcrc_file2.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "fixtures/temp_dir.h"
#include "lexicon/filled_lexicon.h"
#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

using testing::TempDir;

// The small glossary has seven written forms, "avion" first (16 bytes from byte 8), "Ami"
// second (12 bytes from byte 24), and seven headwords taking 157 bytes after the header. A
// file with bytes after its last record fails only when its listed checksum covers them.
TEST(SetLoadReasons, GlossaryNamesTheTableTheRecordAndTheByte) {
  struct Case {
    const char* file;
    std::function<void(std::string&)> damage;
    std::string reason;     // after the folder
    bool relisted = false;  // CRCFile.ini gets the checksum of the damaged file
  };
  const Case cases[] = {
      {"t_Glo_Writings.set", [](std::string& b) { b.resize(30); },
       "t_Glo_Writings.set: at byte 30: the file ends inside record 2 of 7, which starts at byte "
       "24"},
      {"t_Glo_Writings.set", [](std::string& b) { b[13] = 0x40; },
       "t_Glo_Writings.set: at byte 14: record 1 of 7, which starts at byte 8, gives a length "
       "that runs past the end of the file"},
      {"t_Glo_FNs.set", [](std::string& b) { b.replace(4, 4, "\xFF\xFF\xFF\xFF"); },
       "t_Glo_FNs.set: at byte 165: the file holds 7 of the 4294967295 records its count gives"},
      {"t_Glo_FNs.set", [](std::string& b) { b.resize(5); },
       "t_Glo_FNs.set: at byte 5: the file ends inside its header (version and record count)"},
      {"t_Glo_Links.set", [](std::string& b) { b[0] = 100; },
       "t_Glo_Links.set: at byte 0: version 100 is refused: glossary tables take versions below "
       "100"},
      {"t_Glo_FNSorted.set", [](std::string& b) { b += "xyz"; },
       "t_Glo_FNSorted.set: at byte 36: 3 bytes follow the last record", true},
  };
  for (const Case& c : cases) {
    TempDir dir;
    CGloV6 saved;
    testing::FillSmallGlossary(saved);
    saved.setFolder(dir.path());
    ASSERT_TRUE(saved.save(true, {}));
    std::string bytes = dir.Read(c.file);
    c.damage(bytes);
    dir.Write(c.file, bytes);
    if (c.relisted) {
      ASSERT_TRUE(
          profile::WriteString(dir.path() + "CRCFile.ini", "Main", c.file,
                               xCRCFile2::ListChecksumText(Crc32(bytes.data(), bytes.size()))));
    }

    CGloV6 loaded;
    const LoadResult result = loaded.LoadWithReason(dir.path());
    EXPECT_EQ(result.reason(), dir.path() + c.reason);
    EXPECT_FALSE(loaded.load(dir.path())) << c.reason;
  }
}

TEST(SetLoadReasons, MissingTableAndRefusedGrammarVersion) {
  TempDir dir;
  CGramV6 saved = testing::GrammarWithOneOfEach();
  saved.setFolder(dir.path());
  ASSERT_TRUE(saved.save());
  std::string titles = dir.Read("t_Gr_Titles.set");
  titles[0] = 2;
  dir.Write("t_Gr_Titles.set", titles);
  CGramV6 loaded;
  EXPECT_EQ(loaded.LoadWithReason(dir.path()).reason(),
            dir.path() +
                "t_Gr_Titles.set: at byte 0: version 2 is refused: grammar tables take 1 "
                "and below");
  // The tables before the failing one stay loaded.
  EXPECT_EQ(loaded.points.size(), 1u);

  std::filesystem::remove(dir.path() + "t_Gr_Points.set");
  EXPECT_EQ(loaded.LoadWithReason(dir.path()).reason(),
            dir.path() + "t_Gr_Points.set: the file is missing");
}

TEST(SetLoadReasons, ChecksumDiffersFromTheList) {
  TempDir dir;
  Classification saved;
  testing::FillClassificationWithOneOfEach(saved, dir.path());
  ASSERT_TRUE(saved.save());
  const std::string good = dir.Read("t_FamSem.set");
  std::string changed = good;
  changed[16] = 'g';  // the label "f"
  dir.Write("t_FamSem.set", changed);
  Classification loaded;
  const LoadResult result = loaded.LoadWithReason(dir.path());
  ASSERT_FALSE(result.ok());
  EXPECT_FALSE(result.failure().offset);
  EXPECT_EQ(result.reason(),
            dir.path() + "t_FamSem.set: the checksum differs from CRCFile.ini (recorded " +
                xCRCFile2::ListChecksumText(Crc32(good.data(), good.size())) + ", the file has " +
                xCRCFile2::ListChecksumText(Crc32(changed.data(), changed.size())) + ")");
}

}  // namespace
}  // namespace lumora
