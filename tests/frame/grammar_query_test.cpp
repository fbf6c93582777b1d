#include <lumora/lexicon/grammar.h>
#include <lumora/support/paths.h>

#include "frame/content_tree.h"

namespace lumora {
namespace {

using testing::LibraryTest;

class GrammarQuery : public LibraryTest {
 protected:
  void SetUp() override {
    CGramV6 grammar;
    grammar.points.Insert({12, 0, 0, u"point"});
    grammar.setFolder(root() + "d7/C0000/r0001002");
    ASSERT_TRUE(CreateFolderPath(grammar.folder));
    ASSERT_TRUE(grammar.save());
    WriteIni("[001]\nDiscipline=7\nURL=http://cdn/d7/\nUNC=\\\\server\\d7\\\nLocal=" + root() +
             "d7\n");
    ASSERT_TRUE(lmOpen(root().c_str(), 0));
  }

  CGramV6* Grammar(uint32_t path_kind, uint32_t discipline = 7) const {
    ContentRequest request;
    request.disciplineId = discipline;
    request.pathKind = path_kind;
    return lmGetGrammar(&request);
  }
};

TEST_F(GrammarQuery, HandsOutTheLoadedGrammarWithItsMediaFolderUnderTheChosenRoot) {
  const struct {
    uint32_t path_kind;
    std::string media_folder;
  } cases[] = {
      {0, root() + "d7/C0000\\r0001002"},
      {1, "http://cdn/d7/C0000\\r0001002"},
      {2, "\\\\server\\d7\\C0000\\r0001002"},
      {5, root() + "d7/C0000\\r0001002"},
  };
  for (const auto& c : cases) {
    CGramV6* grammar = Grammar(c.path_kind);
    ASSERT_NE(grammar, nullptr);
    EXPECT_EQ(grammar->mediaFolder, c.media_folder) << c.path_kind;
    EXPECT_EQ(grammar->points.size(), 1u);
    EXPECT_EQ(grammar->folder, root() + "d7/C0000/r0001002/");
  }
  EXPECT_EQ(Grammar(1), Grammar(0));
  EXPECT_EQ(Grammar(0, 8), nullptr);
  EXPECT_EQ(lmGetGrammar(nullptr), nullptr);
}

}  // namespace
}  // namespace lumora
