// The open keeps why a discipline's glossary or grammar, or the classification, did not load,
// for the discipline it belongs to, until the close.
#include <lumora/frame/load_failures.h>
#include <lumora/sample/sample_content.h>

#include <gtest/gtest.h>

#include <string>

#include "frame/content_tree.h"

namespace lumora {
namespace {

using LoadFailures = testing::LibraryTest;

TEST_F(LoadFailures, OpenKeepsEachReasonWithItsDisciplineUntilTheClose) {
  std::string error;
  ASSERT_TRUE(sample::WriteSampleContent(root(), {}, &error)) << error;
  dir.Write("D002/C0000/r0001002/t_Gr_Links.set", "");
  dir.Write("Classes/t_Verb_Tense.set", std::string("\x02\0\0\0\0\0\0\0", 8));

  ASSERT_TRUE(lmOpen(root().c_str(), 0));
  EXPECT_FALSE(GlossaryLoadFailure(1));
  EXPECT_FALSE(GrammarLoadFailure(1));
  EXPECT_FALSE(GlossaryLoadFailure(2));
  const auto grammar = GrammarLoadFailure(2);
  ASSERT_TRUE(grammar);
  EXPECT_EQ(grammar->ToString(), root() +
                                     "D002/C0000/r0001002/t_Gr_Links.set: at byte 0: the "
                                     "file ends inside its header (version and record count)");
  const auto classification = ClassificationLoadFailure();
  ASSERT_TRUE(classification);
  EXPECT_EQ(classification->ToString(),
            root() +
                "Classes/t_Verb_Tense.set: at byte 0: version 2 is refused: classification "
                "tables take only version 1");

  lmClose();
  EXPECT_FALSE(GrammarLoadFailure(2));
  EXPECT_FALSE(ClassificationLoadFailure());
}

}  // namespace
}  // namespace lumora
