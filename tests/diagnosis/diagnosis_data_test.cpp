// The stand-in diagnosis library on its own: what its loads read from a content folder, what
// a reset leaves, what the validity check answers and the package file it writes.
#include <diagnosis/diagnosis.h>

#include <gtest/gtest.h>

#include <memory>

#include "fixtures/temp_dir.h"

namespace {

using lumora::testing::TempDir;

// Lessons 1 and 3 with exercise files, course 0 (not a lesson) and names that only look alike.
void WriteContent(const TempDir& dir) {
  dir.Write("C0000/r0001001/words.set", "");
  dir.Write("C0001/r0000040/r0000007.ars", "");
  dir.Write("C0001/r0000005/r0000007.ars", "");  // same resource number under another type
  dir.Write("C0001/r0000005/r0000002.arh", "");
  dir.Write("C0003/r0000008/r0000001.ars", "");
  dir.Write("C0003/notes/r0000009.ars", "");
  dir.Write("C12/r0000008/r0000001.ars", "");
  dir.Write("c0002/r0000008/r0000001.ars", "");
  dir.Write("C0004", "a file, not a course folder");
}

TEST(DiagnosisData, LoadsReadTheLessonsAndExercisesOfTheFolder) {
  TempDir dir;
  WriteContent(dir);
  std::unique_ptr<CLessonsData> lessons(CDiagnosisInt::NewLessonsData());
  ASSERT_TRUE(lessons->Load(44, dir.path(), 3, nullptr, nullptr));
  EXPECT_EQ(lessons->lessons(), (std::vector<uint32_t>{1, 3}));
  EXPECT_EQ(lessons->disciplineParam(), 44);
  EXPECT_EQ(lessons->user(), 3);

  std::unique_ptr<CTestableData> testable(CDiagnosisInt::NewTestableData());
  ASSERT_TRUE(testable->Load(dir.path(), nullptr, nullptr));
  EXPECT_EQ(testable->resources(), (std::vector<uint32_t>{0x100007, 0x300001}));

  lessons->Reset();
  testable->Reset();
  EXPECT_FALSE(lessons->loaded());
  EXPECT_TRUE(lessons->lessons().empty());
  EXPECT_TRUE(testable->resources().empty());
  EXPECT_TRUE(lessons->Load(44, dir.path(), 3, nullptr, nullptr));  // usable again
}

TEST(DiagnosisData, MissingFolderFailsAndLeavesTheObjectsEmpty) {
  TempDir dir;
  WriteContent(dir);
  CLessonsData lessons;
  CTestableData testable;
  ASSERT_TRUE(lessons.Load(1, dir.path(), 1, nullptr, nullptr));
  EXPECT_FALSE(lessons.Load(1, dir.path() + "missing/", 1, nullptr, nullptr));
  EXPECT_FALSE(lessons.loaded());
  EXPECT_TRUE(lessons.lessons().empty());
  EXPECT_FALSE(testable.Load(dir.path() + "C0004/", nullptr, nullptr));
  EXPECT_FALSE(testable.loaded());
}

TEST(DiagnosisData, ValidForTheUserAndFolderOfTheLastLoad) {
  TempDir dir;
  CLessonsData lessons;
  EXPECT_FALSE(CDiagnosisInt::IsValidForUser(dir.path(), &lessons, 3, 0, 0));
  ASSERT_TRUE(lessons.Load(1, dir.path(), 3, nullptr, nullptr));
  EXPECT_TRUE(CDiagnosisInt::IsValidForUser(dir.path(), &lessons, 3, 0, 0));
  EXPECT_FALSE(CDiagnosisInt::IsValidForUser(dir.path(), &lessons, 4, 0, 0));
  EXPECT_FALSE(CDiagnosisInt::IsValidForUser(dir.path() + "other/", &lessons, 3, 0, 0));
  EXPECT_FALSE(CDiagnosisInt::IsValidForUser(dir.path(), nullptr, 3, 0, 0));
  lessons.Reset();
  EXPECT_FALSE(CDiagnosisInt::IsValidForUser(dir.path(), &lessons, 3, 0, 0));
}

TEST(DiagnosisData, DeleteOperationsGiveNullBack) {
  EXPECT_EQ(CDiagnosisInt::DeleteLessonsData(CDiagnosisInt::NewLessonsData()), nullptr);
  EXPECT_EQ(CDiagnosisInt::DeleteTestableData(CDiagnosisInt::NewTestableData()), nullptr);
}

TEST(DiagnosisData, PackageFileListsTheLessonsGiven) {
  TempDir dir;
  std::string report;
  EXPECT_TRUE(CLessonsData::GeneratePackage(44, nullptr, nullptr, "/content/D001/", {3, 12, 10001},
                                            dir.path(), &report));
  EXPECT_EQ(report, "");
  EXPECT_EQ(dir.Read("Diagnosis.txt"),
            "LumoraDiagnosis 1\r\ndiscipline=44\r\nsource=/content/D001/\r\nlessons=3\r\n"
            "3\r\n12\r\n10001\r\n");

  const std::string missing = dir.path() + "missing/";
  EXPECT_FALSE(CLessonsData::GeneratePackage(44, nullptr, nullptr, "", {}, missing, &report));
  EXPECT_EQ(report, "Can not write the diagnosis package: " + missing + "Diagnosis.txt\n");
}

}  // namespace
