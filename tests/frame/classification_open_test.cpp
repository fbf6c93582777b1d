#include <lumora/support/language_table.h>

#include <lumora/sample/sample_classes.h>
#include "frame/content_tree.h"

namespace lumora {
namespace {

using testing::LibraryTest;

using ClassificationOpen = LibraryTest;

TEST_F(ClassificationOpen, OpenLoadsTheCommonClassesFolderAndCloseEmptiesIt) {
  WriteIni("[Common]\nLocal=" + root() + "common\n[001]\nDiscipline=7\n");
  std::string error;
  ASSERT_TRUE(sample::WriteSampleClassification(root() + "common/", &error)) << error;

  Classification* classification = lmGetClassification();
  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_EQ(lmGetClassification(), classification);
  EXPECT_EQ(classification->folder, root() + "common/Classes/");
  EXPECT_FALSE(classification->famSem.empty());
  EXPECT_FALSE(classification->syntacticFunctions.empty());
  EXPECT_EQ(classification->getCatGramLabel(NumberOfCode("JPN"), 20000), u"動詞");

  lmClose();
  EXPECT_EQ(lmGetClassification(), classification);
  EXPECT_TRUE(classification->famSem.empty());
  EXPECT_TRUE(classification->catGram.empty());
  EXPECT_TRUE(classification->syntacticFunctions.empty());

  // Without a discipline to open the classification is still loaded.
  WriteIni("[Common]\nLocal=" + root() + "common\n");
  EXPECT_FALSE(lmOpen(root().c_str(), 0));
  EXPECT_FALSE(classification->verbTenses.empty());
}

}  // namespace
}  // namespace lumora
