#include <lumora/frame/opened_disciplines.h>

#include "frame/content_tree.h"

namespace lumora {
namespace {

using OpenedDisciplines = testing::LibraryTest;

// What a program that works on the content learns of the registry: every open discipline in
// registration order, with its roots and Param, and nothing of the ones the open skipped.
TEST_F(OpenedDisciplines, ListTheRegistryInOrderAndFindTheFirstOfAnIdentifier) {
  WriteIni(
      "[001]\nDiscipline=7\nParam=300\nURL=http://cdn/d7/\n"
      "[002]\nDiscipline=8\nType=1\n"
      "[003]\nDiscipline=9\nLocal=/data/d9\n");
  EXPECT_TRUE(ListOpenedDisciplines().empty());
  OpenedDiscipline found;
  EXPECT_FALSE(FindOpenedDiscipline(7, &found));

  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  const std::vector<OpenedDiscipline> opened = ListOpenedDisciplines();
  ASSERT_EQ(opened.size(), 2u);
  EXPECT_EQ(opened[0].id, 7u);
  EXPECT_EQ(opened[0].param, 300);
  EXPECT_EQ(opened[0].localRoot, root() + "D007/");
  EXPECT_EQ(opened[0].urlRoot, "http://cdn/d7/");
  EXPECT_EQ(opened[0].dataFolder, root() + "D007/");
  EXPECT_EQ(opened[1].id, 9u);
  EXPECT_EQ(opened[1].localRoot, "/data/d9/");

  ASSERT_TRUE(FindOpenedDiscipline(9, &found));
  EXPECT_EQ(found.uncRoot, root() + "D009/");
  EXPECT_FALSE(FindOpenedDiscipline(8, &found));
  EXPECT_EQ(found.id, 9u);
  lmClose();
  EXPECT_TRUE(ListOpenedDisciplines().empty());
}

}  // namespace
}  // namespace lumora
