// The four diagnosis entry points over two disciplines: what the loads are given, how their
// results are counted, and which discipline a check asks.
#include <lumora/lumora.h>

#include <gtest/gtest.h>

#include "frame/content_tree.h"

namespace lumora::testing {
namespace {

ContentRequest Request(uint32_t id) {
  ContentRequest request;
  request.disciplineId = id;
  return request;
}

const CLessonsData* Lessons(uint32_t id) {
  const ContentRequest request = Request(id);
  return lmGetDiagLessonsData(&request);
}

const CTestableData* Testable(uint32_t id) {
  const ContentRequest request = Request(id);
  return lmGetDiagTestableData(&request);
}

// Disciplines 1 (Param 300) and 2; discipline 2's folder exists only when asked for, so that
// both of its loads fail otherwise.
class DiagnosisBridge : public LibraryTest {
 protected:
  void Open(bool with_second_folder) {
    WriteIni("[001]\r\nDiscipline=1\r\nParam=300\r\n[002]\r\nDiscipline=2\r\n");
    dir.Write("D001/C0002/r0000040/r0000005.ars", "");
    if (with_second_folder) dir.Write("D002/C0001/r0000008/r0000001.ars", "");
    ASSERT_TRUE(lmOpen(root().c_str(), 0));
  }
};

TEST_F(DiagnosisBridge, OpenCreatesEmptyObjectsThatAllLoadsFill) {
  Open(true);
  ASSERT_NE(Lessons(1), nullptr);
  EXPECT_FALSE(Lessons(1)->loaded());
  EXPECT_FALSE(Testable(2)->loaded());

  EXPECT_TRUE(lmOpenDiagData(0, 7, false));
  EXPECT_EQ(Lessons(1)->disciplineParam(), 44);  // the low byte of Param 300
  EXPECT_EQ(Lessons(1)->user(), 7);
  EXPECT_EQ(Lessons(1)->contentFolder(), root() + "D001/");
  EXPECT_EQ(Lessons(1)->lessons(), std::vector<uint32_t>{2});
  EXPECT_EQ(Testable(1)->resources(), std::vector<uint32_t>{0x200005});
  EXPECT_EQ(Lessons(2)->disciplineParam(), 0);
  EXPECT_EQ(Testable(2)->resources(), std::vector<uint32_t>{0x100001});
}

TEST_F(DiagnosisBridge, FailedLoadsGiveFalseWithoutStoppingTheWalk) {
  Open(false);
  EXPECT_FALSE(lmOpenDiagData(0, 7, false));
  EXPECT_TRUE(Lessons(1)->loaded());
  EXPECT_TRUE(Testable(1)->loaded());
  EXPECT_FALSE(Lessons(2)->loaded());

  // One discipline counts its own two loads only.
  EXPECT_TRUE(lmOpenDiagData(1, 7, false));
  EXPECT_FALSE(lmOpenDiagData(2, 7, false));
}

TEST_F(DiagnosisBridge, CheckAsksOnlyTheFirstMatchingDisciplineAndLoadsNothing) {
  Open(true);
  ASSERT_TRUE(lmOpenDiagData(2, 7, false));
  EXPECT_FALSE(lmOpenDiagData(0, 7, true));  // discipline 1 answers: it holds no load
  EXPECT_FALSE(Lessons(1)->loaded());
  EXPECT_TRUE(lmOpenDiagData(2, 7, true));
  EXPECT_FALSE(lmOpenDiagData(2, 8, true));
  EXPECT_FALSE(lmOpenDiagData(9, 7, true));
}

TEST_F(DiagnosisBridge, CloseResetsAndLeavesTheObjectsLoadable) {
  EXPECT_TRUE(lmCloseDiagData());  // nothing open
  Open(true);
  EXPECT_TRUE(lmCloseDiagData());  // before any load
  ASSERT_TRUE(lmOpenDiagData(0, 7, false));
  EXPECT_TRUE(lmCloseDiagData());
  EXPECT_FALSE(Lessons(1)->loaded());
  EXPECT_TRUE(Testable(2)->resources().empty());
  EXPECT_TRUE(lmOpenDiagData(0, 7, false));
}

TEST_F(DiagnosisBridge, UnknownDisciplineGivesFalseAndNull) {
  EXPECT_TRUE(lmOpenDiagData(0, 1, false));  // nothing registered, nothing expected
  EXPECT_FALSE(lmOpenDiagData(3, 1, false));
  Open(true);
  EXPECT_FALSE(lmOpenDiagData(3, 1, false));
  EXPECT_EQ(Lessons(3), nullptr);
  EXPECT_EQ(Testable(3), nullptr);
  EXPECT_EQ(lmGetDiagLessonsData(nullptr), nullptr);
  EXPECT_EQ(lmGetDiagTestableData(nullptr), nullptr);
}

}  // namespace
}  // namespace lumora::testing
