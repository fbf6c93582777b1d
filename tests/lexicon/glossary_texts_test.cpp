// The texts the glossary composes for the host: comments, translations, written forms, links
// and error messages.
#include <lumora/lexicon/glossary.h>

#include <gtest/gtest.h>

#include "lexicon/glossary_fixture.h"

namespace lumora {
namespace {

class GlossaryTexts : public ::testing::Test {
 protected:
  GlossaryTexts() { testing::FillSmallGlossary(glossary); }

  CGloV6 glossary;
};

TEST_F(GlossaryTexts, CommentsAreBracketedByTheirType) {
  EXPECT_EQ(glossary.getCommentsText(10), u"(m) [usage] <fam.> [prendre +  l'avion ] [other]");
  EXPECT_EQ(glossary.getSelectedComments(10), u"(m) [usage] <fam.> (prendre +  l'avion )");
  EXPECT_EQ(glossary.getCommentOfType7(10), u"{l'avion}");
  glossary.comments.Insert({11, 7, u"  sans plus "});
  glossary.comments.Insert({11, 2, u"  "});
  EXPECT_EQ(glossary.getCommentOfType7(11), u"{  sans plus }");
  EXPECT_EQ(glossary.getCommentsText(11), u"[  ] [  sans plus ]");
  glossary.comments.Insert({12, 7, u"tout +  "});
  glossary.comments.Insert({12, 9, u"x"});
  EXPECT_EQ(glossary.getCommentOfType7(12), u"");
  EXPECT_EQ(glossary.getSelectedComments(12), u"(tout +  )");
  EXPECT_EQ(glossary.getCommentsText(13), u"");
  EXPECT_EQ(glossary.comments.size(), 9u);
}

TEST_F(GlossaryTexts, TranslationsJoinWithASeparatorStrongerThanTheirOwnPunctuation) {
  EXPECT_EQ(glossary.getTranslation(10, 14), u"plane");
  EXPECT_EQ(glossary.getTranslation(10, 15), u"");
  glossary.translations.Insert({14, 11, u"friend"});
  glossary.translations.Insert({14, 21, u"summer; heat"});
  glossary.translations.Insert({14, 30, u"plane"});
  const struct {
    std::vector<uint16_t> words;
    std::u16string joined;
  } cases[] = {
      {{10, 11}, u"plane, friend"},
      {{11, 10, 99, 30}, u"friend, plane"},  // absent and repeated translations are left out
      {{10, 20}, u"plane; pupil, student"},
      {{20, 21, 10}, u"pupil, student ; summer; heat ; plane"},
      {{99}, u""},
      {{}, u""},
  };
  for (const auto& c : cases) EXPECT_EQ(glossary.getTranslations(c.words, 14), c.joined);

  std::vector<uint8_t> languages;
  ASSERT_TRUE(glossary.getTranslationLanguages(languages));
  EXPECT_EQ(languages, (std::vector<uint8_t>{14, 17}));
  EXPECT_TRUE(glossary.hasTranslationLanguage(17));
  EXPECT_FALSE(glossary.hasTranslationLanguage(15));
  EXPECT_FALSE(CGloV6().getTranslationLanguages(languages));
  EXPECT_TRUE(languages.empty());
}

TEST_F(GlossaryTexts, WrittenFormGoesThroughTheWritingNumber) {
  EXPECT_EQ(glossary.getWritingText(21), u"été");
  GloWritingRecord writing;
  EXPECT_FALSE(glossary.getWriting(21, writing));
  ASSERT_TRUE(glossary.getWriting(521, writing));
  EXPECT_EQ(writing.writing, u"été");
  glossary.fns.Find(21)->writingId = 999;
  EXPECT_EQ(glossary.getWritingText(21), u"");
  EXPECT_EQ(glossary.getWritingText(99), u"");

  GloFNRecord fn;
  ASSERT_TRUE(glossary.getFN(11, fn));
  EXPECT_EQ(fn.codes, U32List{50001});
  EXPECT_FALSE(glossary.getFN(12, fn));
  EXPECT_EQ(fn.fnId, 11);  // an absent key leaves the output alone
}

TEST_F(GlossaryTexts, LinksFromAWord) {
  std::vector<GloLinkRecord> found{{}};
  ASSERT_TRUE(glossary.getLinks(10, found));
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[1].toId, 101u);
  // A word with no links but later ones in the table still answers true.
  EXPECT_TRUE(glossary.getLinks(5, found));
  EXPECT_TRUE(found.empty());
  EXPECT_FALSE(glossary.getLinks(12, found));
  EXPECT_FALSE(CGloV6().getLinks(10, found));
  GloLinkRecord link;
  EXPECT_TRUE(glossary.getLink(11, 102, link));
  EXPECT_EQ(link.attrB, 30);
  EXPECT_FALSE(glossary.getLink(11, 101, link));
}

TEST_F(GlossaryTexts, ErrorsEndEachWithALineFeed) {
  EXPECT_EQ(glossary.getErrors(), "");
  glossary.errors = {"first", "second"};
  EXPECT_EQ(glossary.getErrors(), "first\nsecond\n");
}

TEST_F(GlossaryTexts, LettersAndClouds) {
  std::vector<GloFNLetterRecord> letters;
  ASSERT_TRUE(glossary.getLetters(letters));
  ASSERT_EQ(letters.size(), 3u);
  EXPECT_EQ(letters[2].letter, u"L");
  GloFNLetterRecord letter;
  EXPECT_FALSE(glossary.getLetter(4, letter));
  GloCloudRecord cloud;
  ASSERT_TRUE(glossary.getCloud(10, cloud));
  EXPECT_EQ(cloud.cloudText, u"cloud");
  EXPECT_FALSE(glossary.getCloud(11, cloud));
}

}  // namespace
}  // namespace lumora
