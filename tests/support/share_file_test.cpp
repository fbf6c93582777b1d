#include <lumora/platform/notify.h>
#include <lumora/platform/tick.h>
#include <lumora/support/share_file.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::TempDir;
using namespace open_flags;

// Shortens the retry period and collects what would have been shown to the user.
class ShareFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_ = ShareFileRetrySettings();
    ShareFileRetrySettings() = {2, 60, 10};
    previous_ = SetNotifyHandler([this](const std::string& text) { messages_.push_back(text); });
  }
  void TearDown() override {
    ShareFileRetrySettings() = saved_;
    SetNotifyHandler(previous_);
  }

  TempDir dir_;
  std::vector<std::string> messages_;

 private:
  ShareFileSettings saved_;
  NotifyHandler previous_;
};

TEST_F(ShareFileTest, MissingFileForReadingFailsSilently) {
  ShareFile file;
  FileError error;
  EXPECT_FALSE(file.Open(dir_.path() + "missing", kRead, &error));
  EXPECT_TRUE(messages_.empty());
  EXPECT_EQ(error.os_error, ENOENT);
}

TEST_F(ShareFileTest, FileHeldByAWriterIsRetriedThenRefused) {
  std::string path = dir_.Write("held.bin", "abc");
  ShareFile writer;
  ASSERT_TRUE(writer.Open(path, kWrite | kCreate | kNoTruncate));
  EXPECT_EQ(writer.openFlags() & kShareMask, kShareExclusive);

  ShareFile reader;
  EXPECT_FALSE(reader.Open(path, kRead));
  ASSERT_EQ(messages_.size(), 2u);  // one message per attempt
  EXPECT_NE(messages_[0].find("\nFile: " + path + "\nsrc: "), std::string::npos);
  EXPECT_NE(messages_[0].find(", line: 129"), std::string::npos);

  writer.Close();
  messages_.clear();
  EXPECT_TRUE(reader.Open(path, kRead));
  EXPECT_EQ(reader.openFlags() & kShareMask, kShareDenyWrite);
  EXPECT_TRUE(messages_.empty());
}

// Waiting cannot cure a path that is a folder (nor a missing folder, nor a permission): the
// open fails at once with one message saying why, and the attempt period is not spent.
TEST_F(ShareFileTest, ErrorsThatWaitingCannotCureFailAtOnce) {
  ShareFileRetrySettings() = {2, 60000, 10};
  ShareFile file;
  FileError error;
  const uint32_t start = TickCount();
  ASSERT_TRUE(std::filesystem::create_directory(dir_.path() + "sub"));
  EXPECT_FALSE(file.Open(dir_.path() + "sub", kWrite | kCreate, &error));
  EXPECT_FALSE(file.Open(dir_.path() + "no/folder/x", kWrite | kCreate));
  EXPECT_LT(TickCount() - start, 5000u);
  EXPECT_EQ(error.os_error, EISDIR);
  ASSERT_EQ(messages_.size(), 2u);
  EXPECT_NE(messages_[1].find("\nFile: " + dir_.path() + "no/folder/x"), std::string::npos);
}

TEST_F(ShareFileTest, ReadersShareButKeepWritersOut) {
  std::string path = dir_.Write("shared.bin", "abc");
  ShareFile first, second, writer;
  ASSERT_TRUE(first.Open(path, kRead));
  EXPECT_TRUE(second.Open(path, kRead));
  EXPECT_FALSE(writer.Open(path, kWrite | kCreate));
  EXPECT_EQ(dir_.Read("shared.bin"), "abc");  // the refused writer truncated nothing
}

TEST_F(ShareFileTest, TextModeWritesCrLfAndReadsLinesWithoutEnds) {
  std::string path = dir_.path() + "text.txt";
  {
    ShareFile out;
    ASSERT_TRUE(out.Open(path, kWrite | kCreate | kText));
    out.WriteString("a\nb\n");
    out.WriteString("last");
  }
  EXPECT_EQ(dir_.Read("text.txt"), "a\r\nb\r\nlast");

  dir_.Write("mixed.txt", "one\r\ntwo\nthree");
  ShareFile in;
  ASSERT_TRUE(in.Open(dir_.path() + "mixed.txt", kRead | kText));
  std::string line;
  bool ended = false;
  std::vector<std::pair<std::string, bool>> lines;
  while (in.ReadString(line, &ended)) lines.emplace_back(line, ended);
  EXPECT_EQ(lines, (std::vector<std::pair<std::string, bool>>{
                       {"one", true}, {"two", true}, {"three", false}}));
}

}  // namespace
}  // namespace lumora
