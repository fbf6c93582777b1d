#include <lumora/platform/profile.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using lumora::testing::TempDir;

// Mixed line ends, comments, garbage and duplicates around the keys that are read.
constexpr const char* kMessyFile =
    "; checksums of the content tree\r\n"
    "orphan=before any section\r\n"
    "[Files]\n"
    "garbage line without equals\r\n"
    "Alpha=1\r\n"
    "  Key = 5  \n"
    "Quoted=\"  spaced  \"\r\n"
    "Single='x'\r\n"
    "Mismatched=\"y'\r\n"
    "Dup=first\r\n"
    "Dup=second\r\n"
    ";Commented=no\r\n"
    "[broken header\r\n"
    "\r\n"
    "Tail=after garbage\r\n"
    "[ Other ]\r\n"
    "Alpha=other\r\n"
    "[files]\r\n"
    "Alpha=second section\r\n"
    "Late=only in the duplicate section\r\n";

TEST(Profile, ReadsFirstMatchIgnoringCaseAndGarbage) {
  TempDir dir;
  std::string path = dir.Write("CRCFile.ini", kMessyFile);
  struct Case {
    const char* section;
    const char* key;
    const char* expected;
  };
  const Case cases[] = {
      {"files", "ALPHA", "1"},
      {"FILES", "key", "5"},
      {"Files", "Quoted", "  spaced  "},
      {"Files", "Single", "x"},
      {"Files", "Mismatched", "\"y'"},
      {"Files", "Dup", "first"},
      {"Files", "Tail", "after garbage"},
      {"Files", "Commented", "<none>"},
      {"Files", "garbage line without equals", "<none>"},
      {"Files", "Late", "<none>"},
      {"Files", "orphan", "<none>"},
      {"", "orphan", "<none>"},
      {"other", "alpha", "other"},
      {"Missing", "Alpha", "<none>"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(profile::GetString(path, c.section, c.key, "<none>"), c.expected)
        << c.section << "/" << c.key;
  }
}

TEST(Profile, MissingFileAndLengthLimitGiveFallbackAndCutValues) {
  TempDir dir;
  std::string missing = dir.path() + "absent.ini";
  EXPECT_EQ(profile::GetString(missing, "Files", "Alpha", "dflt"), "dflt");
  EXPECT_EQ(profile::GetInt(missing, "Files", "Alpha", -7), static_cast<uint32_t>(-7));
  std::string path = dir.Write("CRCFile.ini", "[S]\r\nName=abcdef\r\n");
  EXPECT_EQ(profile::GetString(path, "S", "Name", "", 3), "abc");
  EXPECT_EQ(profile::GetString(path, "S", "Other", "fallback", 4), "fall");
}

TEST(Profile, GetIntReadsSignedDecimals) {
  TempDir dir;
  std::string path = dir.Write("CRCFile.ini",
                               "[Sums]\r\nneg=-1985902209\r\npos=+17\r\ntail=42abc\r\nnone=abc\r\n"
                               "empty=\r\nquoted=\" -3\"\r\nunsigned=4294967295\r\n");
  struct Case {
    const char* key;
    uint32_t expected;
  };
  const Case cases[] = {
      {"neg", 0x89A1897Fu},
      {"pos", 17},
      {"tail", 42},
      {"none", 0},
      {"empty", 0},
      {"quoted", static_cast<uint32_t>(-3)},
      {"unsigned", 0xFFFFFFFFu},
      {"missing", 99},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(profile::GetInt(path, "sums", c.key, 99), c.expected) << c.key;
  }
}

TEST(Profile, WriteCreatesFileAndAppendsSections) {
  TempDir dir;
  std::string path = dir.path() + "CRCFile.ini";
  ASSERT_TRUE(profile::WriteString(path, "Files", "A", "1"));
  EXPECT_EQ(dir.Read("CRCFile.ini"), "[Files]\r\nA=1\r\n");
  ASSERT_TRUE(profile::WriteString(path, "More", "B", "-2"));
  EXPECT_EQ(dir.Read("CRCFile.ini"), "[Files]\r\nA=1\r\n\r\n[More]\r\nB=-2\r\n");
  EXPECT_EQ(profile::GetInt(path, "more", "b"), static_cast<uint32_t>(-2));
}

TEST(Profile, WriteKeepsEveryOtherLineByteForByte) {
  struct Case {
    const char* name;
    const char* before;
    const char* section;
    const char* key;
    const char* after;
  };
  const Case cases[] = {
      {"replaces first key in first section, keeping its line end",
       "x\n[S]\n junk\n  a = 1 \n;c\n[s]\na=9\n", "S", "A", "x\n[S]\n junk\nA=5\n;c\n[s]\na=9\n"},
      {"new key follows the last key line, before blanks and comments",
       "[S]\r\nA=1\r\ngarbage\r\n\r\n; note\r\n[T]\r\nC=3\r\n", "s", "B",
       "[S]\r\nA=1\r\nB=5\r\ngarbage\r\n\r\n; note\r\n[T]\r\nC=3\r\n"},
      {"section without keys gets the key after its header", "[S]\n[T]\n", "S", "A",
       "[S]\nA=5\r\n[T]\n"},
      {"last line without line end gets one", "[S]\nA=1", "S", "B", "[S]\nA=1\r\nB=5\r\n"},
      {"new section after a last line without line end", "[S]\nA=1", "T", "B",
       "[S]\nA=1\r\n\r\n[T]\r\nB=5\r\n"},
      {"empty file", "", "S", "A", "[S]\r\nA=5\r\n"},
  };
  for (const auto& c : cases) {
    TempDir dir;
    std::string path = dir.Write("CRCFile.ini", c.before);
    ASSERT_TRUE(profile::WriteString(path, c.section, c.key, "5")) << c.name;
    EXPECT_EQ(dir.Read("CRCFile.ini"), c.after) << c.name;
  }
}

TEST(Profile, SameKeyInTwoSectionsStaysIndependent) {
  TempDir dir;
  std::string path = dir.path() + "CRCFile.ini";
  ASSERT_TRUE(profile::WriteString(path, "One", "Sum", "1"));
  ASSERT_TRUE(profile::WriteString(path, "Two", "Sum", "2"));
  ASSERT_TRUE(profile::WriteString(path, "ONE", "sum", "3"));
  EXPECT_EQ(profile::GetString(path, "One", "Sum"), "3");
  EXPECT_EQ(profile::GetString(path, "Two", "Sum"), "2");
}

TEST(Profile, RefusesValuesThatWouldNotReadBack) {
  TempDir dir;
  std::string path = dir.Write("CRCFile.ini", "[S]\r\nA=1\r\n");
  EXPECT_FALSE(profile::WriteString(path, "S", "A", "two\r\nB=3"));
  EXPECT_FALSE(profile::WriteString(path, "S", "A=B", "1"));
  EXPECT_FALSE(profile::WriteString(path, "S]x", "A", "1"));
  EXPECT_EQ(dir.Read("CRCFile.ini"), "[S]\r\nA=1\r\n");
}

TEST(Profile, ReplaceLeavesOnlyTheFileWithItsPermissions) {
  TempDir dir;
  std::string path = dir.Write("CRCFile.ini", "[S]\r\nA=1\r\n");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(profile::WriteString(path, "S", "A", std::to_string(i)));
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(dir.path())) {
    names.push_back(entry.path().filename().string());
  }
  EXPECT_EQ(names, std::vector<std::string>{"CRCFile.ini"});
  struct stat st;
  ASSERT_EQ(::stat(path.c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 07777, 0640u);
}

TEST(Profile, WriteIntoMissingFolderFails) {
  TempDir dir;
  std::string path = dir.path() + "no-such-folder/CRCFile.ini";
  EXPECT_FALSE(profile::WriteString(path, "S", "A", "1"));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Profile, WriteIntoReadOnlyFolderFailsAndKeepsOldFile) {
  TempDir dir;
  std::string path = dir.Write("sub/CRCFile.ini", "[S]\r\nA=1\r\n");
  std::string folder = dir.path() + "sub";
  ASSERT_EQ(::chmod(folder.c_str(), 0555), 0);
  if (::access(folder.c_str(), W_OK) == 0) GTEST_SKIP() << "folder stays writable (root)";
  EXPECT_FALSE(profile::WriteString(path, "S", "A", "2"));
  EXPECT_EQ(dir.Read("sub/CRCFile.ini"), "[S]\r\nA=1\r\n");
}

}  // namespace
}  // namespace lumora
