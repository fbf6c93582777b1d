#include <lumora/platform/notify.h>
#include <lumora/platform/profile.h>
#include <lumora/platform/tick.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::TempDir;
using namespace open_flags;

class CrcFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    previous_ = SetNotifyHandler([this](const std::string& text) { messages_.push_back(text); });
  }
  void TearDown() override { SetNotifyHandler(previous_); }

  // Writes `bytes` through the checksummed file with the list form.
  std::string WriteChecked(const std::string& name, const std::string& bytes,
                           uint32_t mode = kBinary) {
    std::string path = dir_.path() + name;
    xCRCFile2 file(true, true);
    EXPECT_TRUE(file.Open(path, kCreate | kWrite | mode));
    file.Write(bytes.data(), bytes.size());
    file.Close();
    EXPECT_TRUE(file.verified());
    return path;
  }

  // Reads the whole file through the checksummed file and tells IsGood.
  bool ReadsGood(const std::string& path, size_t limit = SIZE_MAX) {
    xCRCFile2 file(true, true);
    EXPECT_TRUE(file.Open(path, kRead | kBinary));
    char buffer[7];
    size_t total = 0;
    for (size_t got;
         total < limit && (got = file.Read(buffer, std::min(sizeof buffer, limit - total))) > 0;) {
      total += got;
    }
    bool good = file.IsGood();
    file.Close();
    return good;
  }

  std::string List() const { return dir_.path() + "CRCFile.ini"; }

  TempDir dir_;
  std::vector<std::string> messages_;

 private:
  NotifyHandler previous_;
};

TEST_F(CrcFileTest, WriterRecordsSignedChecksumAndDate) {
  std::string path = WriteChecked("t_Glo_Words.set", "123456789");
  EXPECT_EQ(profile::GetString(List(), "Main", "t_Glo_Words.set"), "-1985902209");
  std::string date = profile::GetString(List(), "Main", "DATE_t_Glo_Words.set");
  ASSERT_EQ(date.size(), 19u);  // dd/mm/yyyy hh:mm:ss
  EXPECT_EQ(date[2], '/');
  EXPECT_EQ(date[13], ':');
  EXPECT_TRUE(messages_.empty());

  xCRCFile2 reader(true, true);
  ASSERT_TRUE(reader.Open(path, kRead | kBinary));
  EXPECT_EQ(reader.expected(), 0x89A1897Fu);
  EXPECT_NE(reader.recordedDate(), 0);
}

TEST_F(CrcFileTest, ReaderDetectsChangedAndPartialContent) {
  std::string path = WriteChecked("t_Gram.set", "some set file bytes");
  EXPECT_TRUE(ReadsGood(path));
  EXPECT_FALSE(ReadsGood(path, 5));  // only part of the file read
  dir_.Write("t_Gram.set", "some set file byteZ");
  EXPECT_FALSE(ReadsGood(path));
}

TEST_F(CrcFileTest, UnlistedOrEmptyFilesReadAsGood) {
  std::string path = dir_.Write("plain.set", "never recorded");
  EXPECT_TRUE(ReadsGood(path));
  std::string empty = WriteChecked("empty.set", "");
  EXPECT_EQ(profile::GetString(List(), "Main", "empty.set"), "0");
  dir_.Write("empty.set", "grew later");
  EXPECT_TRUE(ReadsGood(empty));  // a recorded 0 checks nothing
}

TEST_F(CrcFileTest, TextModeChecksumCoversCrLfOnDisk) {
  std::string path = WriteChecked("lines.txt", "a\nb\n", kText);
  EXPECT_EQ(dir_.Read("lines.txt"), "a\r\nb\r\n");
  EXPECT_EQ(xCRCFile2::FileChecksum(path), Crc32("a\r\nb\r\n", 6));

  xCRCFile2 reader(true, true);
  ASSERT_TRUE(reader.Open(path, kRead | kText));
  std::string line;
  while (reader.ReadString(line)) {
  }
  EXPECT_TRUE(reader.IsGood());
}

TEST_F(CrcFileTest, RecordedDateIsReadAsLocalTime) {
  std::string path = dir_.Write("dated.set", "x");
  ASSERT_TRUE(profile::WriteString(List(), "Main", "DATE_dated.set", "05/03/2002 14:07:09"));
  xCRCFile2 reader(true, true);
  ASSERT_TRUE(reader.Open(path, kRead | kBinary));
  std::time_t t = reader.recordedDate();
  std::tm tm{};
  localtime_r(&t, &tm);
  EXPECT_EQ(tm.tm_mday, 5);
  EXPECT_EQ(tm.tm_mon, 2);
  EXPECT_EQ(tm.tm_year, 102);
  EXPECT_EQ(tm.tm_hour, 14);
  EXPECT_EQ(tm.tm_min, 7);
  EXPECT_EQ(tm.tm_sec, 9);
}

TEST_F(CrcFileTest, TrailerFormAppendsLittleEndianChecksum) {
  std::string path = dir_.path() + "trailer.bin";
  xCRCFile2 writer(true, false);
  ASSERT_TRUE(writer.Open(path, kCreate | kWrite | kBinary));
  writer.Write("123456789", 9);
  writer.Close();
  EXPECT_EQ(dir_.Read("trailer.bin"), std::string("123456789\x7F\x89\xA1\x89", 13));
  EXPECT_FALSE(FileExists(List()));

  xCRCFile2 reader(true, false);
  ASSERT_TRUE(reader.Open(path, kRead | kBinary));
  EXPECT_EQ(reader.expected(), 0x89A1897Fu);
}

TEST_F(CrcFileTest, ChecksumOffIsAPlainFile) {
  std::string path = dir_.path() + "plain.bin";
  xCRCFile2 writer(false, true);
  ASSERT_TRUE(writer.Open(path, kCreate | kWrite | kBinary));
  writer.Write("abc", 3);
  writer.Close();
  EXPECT_FALSE(FileExists(List()));
  EXPECT_EQ(xCRCFile2::FileChecksum(dir_.path() + "missing"), 0u);
}

TEST_F(CrcFileTest, MissingFileAndUnwritableFolder) {
  xCRCFile2 reader(true, true);
  EXPECT_FALSE(reader.Open(dir_.path() + "missing.set", kRead | kBinary));
  EXPECT_TRUE(reader.path().empty());
  EXPECT_TRUE(messages_.empty());

  ShareFileSettings saved = ShareFileRetrySettings();
  ShareFileRetrySettings() = {2, 20, 5};
  xCRCFile2 writer(true, true);
  EXPECT_FALSE(writer.Open(dir_.path() + "no/folder/t.set", kCreate | kWrite | kBinary));
  ShareFileRetrySettings() = saved;
  // Waiting cannot bring a folder into being: one message, no second attempt.
  EXPECT_EQ(messages_.size(), 1u);
}

TEST(CrcFileRetry, ShouldRetryWindows) {
  const uint32_t now = TickCount();
  EXPECT_TRUE(xCRCFile2::ShouldRetry(3, now - 100000));
  EXPECT_TRUE(xCRCFile2::ShouldRetry(4, now - 29000));
  EXPECT_FALSE(xCRCFile2::ShouldRetry(10, now - 31000));
  EXPECT_TRUE(xCRCFile2::ShouldRetry(11, now - 9000));
  EXPECT_FALSE(xCRCFile2::ShouldRetry(11, now - 11000));
}

}  // namespace
}  // namespace lumora
