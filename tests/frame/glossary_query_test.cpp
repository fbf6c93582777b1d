#include <lumora/lexicon/glossary.h>
#include <lumora/support/paths.h>

#include "frame/content_tree.h"
#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

using testing::LibraryTest;

class GlossaryQuery : public LibraryTest {
 protected:
  void SetUp() override {
    CGloV6 glossary;
    testing::FillSmallGlossary(glossary);
    glossary.setFolder(root() + "d7/C0000/r0001001");
    ASSERT_TRUE(CreateFolderPath(glossary.folder));
    ASSERT_TRUE(glossary.save(true, {}));
    WriteIni("[001]\nDiscipline=7\nParam=17\nURL=http://cdn/d7/\nUNC=\\\\server\\d7\\\nLocal=" +
             root() + "d7\n");
    ASSERT_TRUE(lmOpen(root().c_str(), 0));
  }

  CGloV6* Glossary(uint32_t path_kind, uint32_t discipline = 7) const {
    ContentRequest request;
    request.disciplineId = discipline;
    request.pathKind = path_kind;
    return lmGetGlossary(&request);
  }
};

TEST_F(GlossaryQuery, HandsOutTheLoadedGlossaryWithTheSoundPatternOfThePathKind) {
  const struct {
    uint32_t path_kind;
    std::string pattern, sound_path;
  } cases[] = {
      {0, "", ""},
      {1, "http://cdn/d7/C0000/r0001001/Q%d/%03d/%02d.swf",
       "http://cdn/d7/C0000/r0001001/Q2/000/10.swf"},
      {2, "\\\\server\\d7\\C0000\\r0001001\\Q%d\\%03d\\%02d.swf",
       "\\\\server\\d7\\C0000\\r0001001\\Q2\\000\\10.swf"},
      {5, "", ""},
  };
  for (const auto& c : cases) {
    CGloV6* glossary = Glossary(c.path_kind);
    ASSERT_NE(glossary, nullptr);
    EXPECT_EQ(glossary->mediaTemplate, c.pattern) << c.path_kind;
    EXPECT_EQ(glossary->getSoundPath(10, 2), c.sound_path) << c.path_kind;
    EXPECT_EQ(glossary->getSoundPath(11, 2), "") << c.path_kind;
  }
  CGloV6* glossary = Glossary(1);
  EXPECT_EQ(glossary, Glossary(0));
  EXPECT_EQ(glossary->folder, root() + "d7/C0000/r0001001/");
  EXPECT_EQ(glossary->fns.size(), 7u);
  EXPECT_EQ(glossary->language, 17);
  EXPECT_EQ(glossary->classification, lmGetClassification());
  EXPECT_EQ(Glossary(0, 8), nullptr);
  EXPECT_EQ(lmGetGlossary(nullptr), nullptr);
}

}  // namespace
}  // namespace lumora
