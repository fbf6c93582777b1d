#include <lumora/platform/held_retry.h>
#include <lumora/platform/profile.h>
#include <lumora/support/crc32.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/paths.h>
#include <lumora/support/xcrc_file2.h>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using testing::TempDir;

std::string Listed(const TempDir& dir, const std::string& key) {
  return profile::GetString(dir.path() + xCRCFile2::kListName, "Main", key, "");
}

std::string CrcText(const std::string& bytes) {
  return xCRCFile2::ListChecksumText(Crc32(bytes.data(), bytes.size()));
}

TEST(FolderCommit, ReplacesEveryFileAndRecordsTheChecksumsItWasAskedFor) {
  TempDir dir;
  dir.Write("CRCFile.ini", "; kept\r\n[Main]\r\nother.set=17\r\n");
  dir.Write("a.set", "old a");
  FolderCommit commit(dir.path());
  commit.Add("a.set", "new a", true);
  commit.Add("b.idx", "new b", true);
  commit.Add("plain.ari", "plain", false);
  commit.Add("a.set", "newer a", true);
  commit.SetListValue("Version_b.idx", "2");
  ASSERT_TRUE(commit.Commit().ok());

  EXPECT_EQ(dir.Read("a.set"), "newer a");
  EXPECT_EQ(dir.Read("b.idx"), "new b");
  EXPECT_EQ(dir.Read("plain.ari"), "plain");
  EXPECT_EQ(Listed(dir, "a.set"), CrcText("newer a"));
  EXPECT_EQ(Listed(dir, "b.idx"), CrcText("new b"));
  EXPECT_EQ(Listed(dir, "DATE_a.set"), xCRCFile2::ListDate(dir.path() + "a.set"));
  EXPECT_EQ(Listed(dir, "plain.ari"), "");
  EXPECT_EQ(Listed(dir, "Version_b.idx"), "2");
  EXPECT_EQ(Listed(dir, "other.set"), "17");
  EXPECT_EQ(dir.Read("CRCFile.ini").rfind("; kept\r\n[Main]\r\nother.set=17\r\n", 0), 0u);
  EXPECT_FALSE(FileExists(dir.path() + kCommitJournalName));
}

// What a crash can leave, and what the next reader of the folder makes of it.
TEST(FolderCommit, TheNextReaderFinishesACommittedSaveAndDropsAnUnfinishedOne) {
  struct Case {
    const char* name;
    const char* journal;  // nullptr: none
    bool a_staged;
    bool b_staged;
    const char* a_after;
    const char* b_after;
  };
  const Case cases[] = {
      {"staged, never committed", nullptr, true, true, "old a", "old b"},
      {"committed, nothing renamed", "lumora commit\na\nb\nend\n", true, true, "new a", "new b"},
      {"committed, a renamed", "lumora commit\na\nb\nend\n", false, true, "new a", "new b"},
      {"not a journal of ours", "lumora commit\na\n", true, true, "old a", "old b"},
      {"a journal naming another folder", "lumora commit\n../a\nend\n", true, true, "old a",
       "old b"},
  };
  for (const Case& c : cases) {
    TempDir dir;
    dir.Write("a", c.a_staged ? "old a" : "new a");
    dir.Write("b", "old b");
    if (c.a_staged) dir.Write("a.lumora-new", "new a");
    if (c.b_staged) dir.Write("b.lumora-new", "new b");
    if (c.journal) dir.Write(kCommitJournalName, c.journal);
    dir.Write(std::string(kCommitJournalName) + ".lumora-new", "half a journal");
    { FolderReadScope scope(dir.path()); }
    EXPECT_EQ(dir.Read("a"), c.a_after) << c.name;
    EXPECT_EQ(dir.Read("b"), c.b_after) << c.name;
    for (const char* left :
         {"a.lumora-new", "b.lumora-new", ".lumora-commit", ".lumora-commit.lumora-new"}) {
      EXPECT_FALSE(FileExists(dir.path() + left)) << c.name << ": " << left;
    }
  }
}

// Two processes save the same two files over and over while this one reads them: every read,
// and the final state, shows both files from one save, with the checksums of that save.
TEST(FolderCommit, ConcurrentSavesAndReadsNeverMixTwoSaves) {
  TempDir dir;
  FolderCommit first(dir.path());
  first.Add("a.set", "start", true);
  first.Add("b.set", "start", true);
  ASSERT_TRUE(first.Commit().ok());
  constexpr int kSaves = 15;
  const ShareFileSettings saved = ShareFileRetrySettings();
  ShareFileRetrySettings().wait_ms = 1;
  pid_t writers[2];
  for (int w = 0; w < 2; ++w) {
    writers[w] = ::fork();
    ASSERT_GE(writers[w], 0);
    if (writers[w] == 0) {
      for (int i = 0; i < kSaves; ++i) {
        const std::string tag = std::to_string(w) + "-" + std::to_string(i);
        FolderCommit commit(dir.path());
        commit.Add("a.set", "a " + tag, true);
        commit.Add("b.set", "b " + tag, true);
        if (!commit.Commit().ok()) ::_exit(1);
      }
      ::_exit(0);
    }
  }
  int mixed = 0;
  for (int r = 0; r < 200; ++r) {
    FolderReadScope scope(dir.path());
    const std::string a = dir.Read("a.set");
    const std::string b = dir.Read("b.set");
    if (a.substr(a.find(' ') + 1) != b.substr(b.find(' ') + 1)) ++mixed;
    ::usleep(1000);
  }
  for (pid_t writer : writers) {
    int status = 0;
    ASSERT_EQ(::waitpid(writer, &status, 0), writer);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
  ShareFileRetrySettings() = saved;
  EXPECT_EQ(mixed, 0);
  const std::string a = dir.Read("a.set");
  EXPECT_EQ(a.substr(2), dir.Read("b.set").substr(2));
  EXPECT_EQ(Listed(dir, "a.set"), CrcText(a));
  EXPECT_EQ(Listed(dir, "b.set"), CrcText(dir.Read("b.set")));
}

}  // namespace
}  // namespace lumora
