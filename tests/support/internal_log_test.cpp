#include <lumora/support/internal_log.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <thread>
#include <vector>

#include "fixtures/temp_dir.h"

namespace lumora {
namespace {

namespace fs = std::filesystem;
using testing::TempDir;

std::time_t LocalMoment(int year, int month, int day, int hour = 10) {
  std::tm local{};
  local.tm_year = year - 1900;
  local.tm_mon = month - 1;
  local.tm_mday = day;
  local.tm_hour = hour;
  local.tm_isdst = -1;
  return std::mktime(&local);
}

std::vector<std::string> FileNames(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Pins the date, drops the waits, keeps the default folder inside the test's own folder and
// replaces the process exit; every test ends with the log removed.
class InternalLogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_ = LogSettings();
    fs::create_directory(DefaultFolder());
    LogSettings().clock = [this] { return now_; };
    LogSettings().retryDelay = std::chrono::milliseconds(0);
    LogSettings().defaultFolder = DefaultFolder();
    LogSettings().tooManyThreads = [this] { ++exits_; };
  }
  void TearDown() override {
    RemoveLog();
    LogSettings() = saved_;
  }

  std::string DefaultFolder() const { return dir_.path() + "default/"; }
  std::string LogFolder() const { return dir_.path() + "logs/"; }
  std::string Seconds() const { return std::to_string(static_cast<int32_t>(now_)); }

  TempDir dir_;
  std::time_t now_ = LocalMoment(2002, 3, 14);
  int exits_ = 0;

 private:
  InternalLogSettings saved_;
};

TEST_F(InternalLogTest, NothingIsWrittenUntilInstalledWithFilesToKeep) {
  SetSlot(3, "text");
  SetStickySlot(4, "sticky");
  ReportCode(541);
  ReportEvent(7);
  EXPECT_EQ(InstalledLog(), nullptr);
  EXPECT_TRUE(FileNames(DefaultFolder()).empty());

  InstallLog(LogFolder(), 0);
  ReportCode(541);
  EXPECT_TRUE(FileNames(LogFolder()).empty());
  EXPECT_TRUE(FileNames(DefaultFolder()).empty());
}

TEST_F(InternalLogTest, LinesCarryOriginEventAndSlots) {
  InstallLog(dir_.path() + "a/b/logs", 3);  // the folder is made with its parents
  SetOrigin(7);
  SetSequence(42);
  SetStickySlot(9, "user 1");
  ReportCodeText(541, "cannot open\r\nfile");
  ReportCode(795);
  RemoveStickySlot(9);
  SetSlot(5, "plain");
  ReportEvent(12);
  ReportException(988, std::runtime_error(std::string(300, 'x')));

  const std::string s = Seconds();
  EXPECT_EQ(dir_.Read("a/b/logs/~020314.log"),
            s + " 7 200004 2=541 3=\"cannot openfile\" 1=42 9=\"user 1\"\r\n" +  //
                s + " 7 200004 2=795 1=42 9=\"user 1\"\r\n" +                    //
                s + " 7 12 5=plain 1=42 \r\n" +                                  //
                s + " 7 200004 2=988 3=" + std::string(255, 'x') + " 1=42 \r\n");
}

TEST_F(InternalLogTest, FileNameHoldsTwoDigitYearMonthAndDay) {
  struct Case {
    int year, month, day;
    const char* name;
  };
  const Case cases[] = {{2002, 3, 14, "~020314.log"}, {2010, 12, 5, "~101205.log"}};
  InstallLog(LogFolder(), 5);
  for (const auto& c : cases) {
    now_ = LocalMoment(c.year, c.month, c.day);
    ReportCode(1);
    EXPECT_TRUE(fs::exists(LogFolder() + c.name)) << c.name;
  }
}

TEST_F(InternalLogTest, FirstLineOfADayKeepsOnlyTheNewestFiles) {
  for (int day = 1; day <= 5; ++day) dir_.Write("logs/~02030" + std::to_string(day) + ".log", "");
  dir_.Write("logs/~notes.log", "");      // not prefix + six characters
  dir_.Write("logs/~020301.txt", "");     // not a log file
  dir_.Write("logs/x020301.log", "");     // another prefix
  dir_.Write("default/~020302.log", "");  // the default folder is pruned too
  InstallLog(LogFolder(), 3);

  now_ = LocalMoment(2002, 3, 6);
  ReportCode(1);
  EXPECT_EQ(FileNames(LogFolder()),
            (std::vector<std::string>{"x020301.log", "~020301.txt", "~020304.log", "~020305.log",
                                      "~020306.log", "~notes.log"}));
  EXPECT_EQ(FileNames(DefaultFolder()), std::vector<std::string>{"~020302.log"});

  // Only a new file prunes: a later line of the same day leaves an old file alone.
  dir_.Write("logs/~020302.log", "");
  ReportCode(2);
  EXPECT_TRUE(fs::exists(LogFolder() + "~020302.log"));
}

TEST_F(InternalLogTest, UnwritableFolderFallsBackToTheDefaultFolder) {
  InstallLog(LogFolder(), 3);
  fs::remove_all(LogFolder());
  dir_.Write("logs", "a file where the folder was");
  ReportCode(541);
  EXPECT_EQ(dir_.Read("default/~020314.log"), Seconds() + " 0 200004 2=541 1=0 \r\n");
}

TEST_F(InternalLogTest, AttachedThreadsAppendToOneFile) {
  ThreadLogRegistry* registry = InstallLog(LogFolder(), 3);
  SetSequence(5);
  std::vector<std::thread> threads;
  for (uint16_t origin = 1; origin <= 4; ++origin) {
    threads.emplace_back([registry, origin] {
      AttachThread(registry);
      SetOrigin(origin);
      for (int i = 0; i < 25; ++i) ReportCode(i);
    });
  }
  threads.emplace_back([] { ReportCode(99); });  // not attached: keeps no files
  for (auto& thread : threads) thread.join();

  std::string text = dir_.Read("logs/~020314.log");
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 100);
  EXPECT_NE(text.find(" 4 200004 2=24 1=5 \r\n"), std::string::npos);
  EXPECT_EQ(text.find("2=99"), std::string::npos);
  EXPECT_EQ(registry->contexts.size(), 6u);
}

TEST_F(InternalLogTest, EleventhReportingThreadEndsTheProcess) {
  InstallLog(LogFolder(), 3);
  for (int i = 0; i < 9; ++i) std::thread([] { SetOrigin(1); }).join();
  EXPECT_EQ(exits_, 0);

  const fs::path previous = fs::current_path();
  fs::current_path(dir_.path());
  std::thread([] { ReportEvent(1); }).join();
  fs::current_path(previous);

  EXPECT_EQ(exits_, 1);
  EXPECT_EQ(InstalledLog()->contexts.size(), 10u);
  EXPECT_EQ(dir_.Read("VendrelInternalErrors.Txt"),
            "14/03/2002 10:00:00 : Too much threads in CxThreadObjects !\r\n");
  EXPECT_EQ(dir_.Read("logs/~020314.log"), "");
}

}  // namespace
}  // namespace lumora
