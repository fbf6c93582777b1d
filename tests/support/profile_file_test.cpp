#include <lumora/support/internal_log.h>
#include <lumora/support/profile_file.h>

#include <climits>
#include <filesystem>

#include <gtest/gtest.h>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

using lumora::testing::TempDir;

class ProfileFileTest : public ::testing::Test {
 protected:
  ProfileFile Loaded(const std::string& bytes) {
    ProfileFile file;
    EXPECT_TRUE(file.Load(dir_.Write("Content.ini", bytes)));
    return file;
  }

  TempDir dir_;
};

TEST_F(ProfileFileTest, HeaderMatchesByPrefixIgnoringCase) {
  struct Case {
    const char* header;
    const char* name;
    bool found;
  };
  const Case cases[] = {
      {"[common]", "Common", true},     {"[Common] ; shared", "Common", true},
      {"  [COMMON]\t", "Common", true}, {"[Comm", "Common", false},
      {"[Commons]", "Common", false},   {"[ Common ]", "Common", false},
      {"[001]", "001", true},
  };
  for (const auto& c : cases) {
    ProfileFile file = Loaded(std::string("x=1\r\n") + c.header + "\r\nLocal=here\r\n");
    EXPECT_EQ(file.FindSection(c.name), c.found) << c.header;
    EXPECT_EQ(file.GetString("Local"), c.found ? "here" : "") << c.header;
  }
}

TEST_F(ProfileFileTest, KeyLineNeedsKeyAndEqualsSideBySide) {
  struct Case {
    const char* line;
    const char* value;
  };
  const Case cases[] = {
      {"Local = D:\\Data", ""},
      {"local=D:\\Data", "D:\\Data"},
      {"Local=  D:\\Data   ", "D:\\Data"},
      {"Local=\tD:\\Data\t\r", "D:\\Data"},
      {"LocalPath=D:\\Data", ""},
      {"Local=", ""},
      {"  Local=D:\\Data", "D:\\Data"},
  };
  for (const auto& c : cases) {
    ProfileFile file = Loaded(std::string("[Common]\n") + c.line + "\n");
    ASSERT_TRUE(file.FindSection("Common"));
    EXPECT_EQ(file.GetString("Local"), c.value) << c.line;
  }
}

TEST_F(ProfileFileTest, KeysReadInAnyOrderWithinTheirSection) {
  ProfileFile file = Loaded(
      "Discipline=99\r\n"
      "[Common]\r\nLocal=C:\\Shared\r\n"
      "[001]\r\nURL=http://host/d1/\r\nParam=1033\r\nDiscipline=7\r\nType=257\r\n"
      "[002]\r\nDiscipline=8\r\nType=0\r\nParam=-2\r\nLocal=E:\\D8\r\n");
  ASSERT_TRUE(file.FindSection("Common"));
  EXPECT_EQ(file.GetString("Discipline"), "") << "key before the first header";
  EXPECT_EQ(file.GetString("URL"), "") << "key of a later section";
  for (const char* section : {"001", "002"}) {
    ASSERT_TRUE(file.FindSection(section));
    const bool first = section == std::string("001");
    EXPECT_EQ(file.GetInt("Discipline"), first ? 7 : 8) << section;
    EXPECT_EQ(file.GetInt("Type"), first ? 257 : 0) << section;
    EXPECT_EQ(file.GetInt("Param"), first ? 1033 : -2) << section;
    EXPECT_EQ(file.GetString("Local"), first ? "" : "E:\\D8") << section;
    EXPECT_EQ(file.GetString("URL"), first ? "http://host/d1/" : "") << section;
  }
}

TEST_F(ProfileFileTest, BlankFileHoldsOneSpaceLineAndNoSection) {
  for (const char* bytes : {"\n", "\r\n", " \t \r\n"}) {
    ProfileFile file = Loaded(bytes);
    EXPECT_EQ(file.lines, std::vector<std::string>{" "});
    EXPECT_EQ(file.lineCount, 1);
    EXPECT_FALSE(file.FindSection("Common"));
    EXPECT_EQ(file.GetString("Local"), "");
  }
  ProfileFile empty = Loaded("");
  EXPECT_EQ(empty.lineCount, 0);
  EXPECT_FALSE(empty.FindSection("Common"));
}

TEST_F(ProfileFileTest, MissingSectionHidesKeysUntilOneIsFoundAgain) {
  ProfileFile file = Loaded("[Common]\nLocal=a\n[001]\nDiscipline=5\n");
  ASSERT_TRUE(file.FindSection("Common"));
  EXPECT_EQ(file.GetString("Local"), "a");
  EXPECT_FALSE(file.FindSection("002"));
  EXPECT_EQ(file.GetString("Local"), "");
  EXPECT_EQ(file.GetInt("Discipline"), 0);
  ASSERT_TRUE(file.FindSection("001"));
  EXPECT_EQ(file.GetInt("Discipline"), 5);
}

TEST_F(ProfileFileTest, SearchesStartAtTheCursorAndWrapAround) {
  ProfileFile file = Loaded("[A]\nk=a1\n[B]\nk=b\n[A]\nk=a2\n");
  struct Step {
    const char* section;
    int32_t start;
    const char* value;
  };
  // A second [A] is reached only because the search starts where the last one stopped.
  const Step steps[] = {{"A", 0, "a1"}, {"B", 2, "b"}, {"a", 4, "a2"}, {"b", 2, "b"}};
  for (const auto& s : steps) {
    ASSERT_TRUE(file.FindSection(s.section)) << s.section;
    EXPECT_EQ(file.sectionStart, s.start) << s.section;
    EXPECT_EQ(file.GetString("K"), s.value) << s.section;
  }
}

TEST_F(ProfileFileTest, KeySearchWrapsWithinSectionAndMeetsDuplicatesFromCursor) {
  ProfileFile file = Loaded("x=0\n[S]\nA=1\nB=2\nA=3\n[T]\nA=4\n");
  ASSERT_TRUE(file.FindSection("S"));
  struct Step {
    const char* key;
    const char* value;
    int32_t cursor;
  };
  const Step steps[] = {
      {"A", "1", 2}, {"B", "2", 3}, {"A", "3", 4}, {"A", "3", 4},
      {"B", "2", 3}, {"x", "", 3},  {"b", "2", 3},
  };
  for (const auto& s : steps) {
    EXPECT_EQ(file.GetString(s.key), s.value) << s.key;
    EXPECT_EQ(file.cursor, s.cursor) << s.key;
  }
}

TEST_F(ProfileFileTest, GetIntReadsLikeADecimalSignedLong) {
  struct Case {
    const char* value;
    int32_t expected;
  };
  const Case cases[] = {
      {"257", 257},
      {"-12abc", -12},
      {"+5", 5},
      {"abc", 0},
      {"", 0},
      {"0x1F", 0},
      {"- 3", 0},
      {"99999999999", INT_MAX},
      {"-99999999999", INT_MIN},
      {"-2147483648", INT_MIN},
  };
  for (const auto& c : cases) {
    ProfileFile file = Loaded(std::string("[S]\nN=") + c.value + "\n");
    ASSERT_TRUE(file.FindSection("S"));
    EXPECT_EQ(file.GetInt("N"), c.expected) << c.value;
  }
}

TEST_F(ProfileFileTest, LongLinesAreReadInPiecesOf5118Characters) {
  auto a = [](size_t n) { return std::string(n, 'a'); };
  struct Case {
    size_t length;
    const char* line_end;
    std::vector<std::string> lines;
  };
  // The line feed counts towards a piece, the CR of a CR LF pair does not; a piece holding
  // only the line feed is an empty line, stored as one space.
  const Case cases[] = {
      {5117, "\n", {a(5117)}},
      {5117, "\r\n", {a(5117)}},
      {5118, "\n", {a(5118), " "}},
      {5119, "\n", {a(5118), a(1)}},
      {12000, "\r\n", {a(5118), a(5118), a(1764)}},
  };
  for (const auto& c : cases) {
    ProfileFile file = Loaded(a(c.length) + c.line_end + "[S]\n");
    std::vector<std::string> expected = c.lines;
    expected.push_back("[S]");
    EXPECT_EQ(file.lines, expected) << c.length;
    EXPECT_EQ(file.lineCount, static_cast<int32_t>(expected.size())) << c.length;
  }
}

TEST_F(ProfileFileTest, UnreadableFileGivesFalseAndNoLines) {
  ProfileFile file = Loaded("[S]\nA=1\n");
  EXPECT_FALSE(file.Load(dir_.path() + "missing.ini"));
  EXPECT_TRUE(file.lines.empty());
  EXPECT_EQ(file.lineCount, 0);
  EXPECT_FALSE(file.FindSection("S"));
  EXPECT_EQ(file.GetString("A"), "");
  EXPECT_FALSE(file.Load(dir_.path()));
}

TEST_F(ProfileFileTest, UnreadableFileIsReportedToAnInstalledLog) {
  const InternalLogSettings saved = LogSettings();
  LogSettings().clock = [] { return std::time_t{1016100000}; };
  LogSettings().defaultFolder = dir_.path();
  InstallLog(dir_.path() + "logs", 1);
  ProfileFile file;
  EXPECT_FALSE(file.Load(dir_.path() + "missing.ini"));
  RemoveLog();
  LogSettings() = saved;

  const std::filesystem::directory_iterator logs(dir_.path() + "logs");
  ASSERT_NE(logs, std::filesystem::directory_iterator());
  const std::string line = dir_.Read("logs/" + logs->path().filename().string());
  EXPECT_EQ(line, "1016100000 0 200004 2=541 3=\"No such file or directory\" 1=0 \r\n");
}

}  // namespace
}  // namespace lumora
