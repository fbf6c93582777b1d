#include <lumora/lexicon/headword_order.h>
#include <lumora/platform/notify.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumora {
namespace {

constexpr uint8_t kEnglishUK = 14;
constexpr uint8_t kEnglishUS = 15;
constexpr uint8_t kFrench = 17;
constexpr uint8_t kGerman = 18;
constexpr uint8_t kChineseTrad = 40;

class HeadwordOrder : public ::testing::Test {
 protected:
  void SetUp() override {
    previous_ = SetNotifyHandler([this](const std::string& text) { messages_.push_back(text); });
  }
  void TearDown() override { SetNotifyHandler(previous_); }

  std::vector<std::string> messages_;

 private:
  NotifyHandler previous_;
};

struct KeyCase {
  std::u16string writing;
  uint8_t language;
  std::u16string key;
};

TEST_F(HeadwordOrder, SortKeyDropsPunctuationParenthesesAndLeadingWords) {
  const std::vector<KeyCase> cases = {
      {u"the house", kEnglishUK, u"house"},
      {u"the house", kEnglishUS, u"house"},
      {u"The house", kEnglishUK, u"The house"},   // prefixes match case-sensitively
      {u"he is an actor", kEnglishUK, u"actor"},  // the longest form is tried first
      {u"he's a pilot", kEnglishUS, u"pilot"},
      {u"to", kEnglishUK, u"to"},
      {u"(to) go", kEnglishUK, u"go"},
      {u"(go)", kEnglishUK, u"go)"},  // whole text in parentheses: only "(" goes
      {u"  (go)  ", kEnglishUK, u"go)"},
      {u"(a) (b) c", kEnglishUK, u"c"},
      {u"the (big) house", kEnglishUK, u"house"},
      {u"(the house)", kEnglishUK, u"the house)"},  // returned before the articles
      {u"3 bis", kFrench, u"bis"},
      {u"!the end?", kEnglishUK, u"end"},
      {u"l'arbre", kFrench, u"arbre"},
      {u"l'", kFrench, u"l'"},  // a prefix goes only from a longer text
      {u"les", kFrench, u"les"},
      {u"la maison", kFrench, u"maison"},
      {u"the house", kFrench, u"the house"},
      {u"sich waschen", kGerman, u"waschen"},
      {u"de man", kChineseTrad, u"de man"},
      {u"the house", 200, u"the house"},
      {u"", kEnglishUK, u""},
      {u"12.5", kEnglishUK, u""},
  };
  for (const KeyCase& c : cases) {
    EXPECT_EQ(sortKey(c.writing, c.language), c.key)
        << std::string(c.writing.begin(), c.writing.end());
  }
  EXPECT_TRUE(messages_.empty());
}

TEST_F(HeadwordOrder, UnbalancedParenthesesAreReportedAndKeepTheRest) {
  EXPECT_EQ(sortKey(u"(to go", kEnglishUK), u"(to go");
  EXPECT_EQ(sortKey(u"go) (x", kEnglishUK), u"go) (x");
  // The parts handled before the fault are gone; the articles are still removed afterwards.
  EXPECT_EQ(sortKey(u"(x) the (é", kFrench), u"the (é");
  EXPECT_EQ(sortKey(u"(x) la (été", kFrench), u"(été");
  EXPECT_EQ(messages_, (std::vector<std::string>{
                           "(to go : Parenthesis Error !",
                           "go) (x : Parenthesis Error !",
                           "the (\xE9 : Parenthesis Error !",
                           "la (\xE9t\xE9 : Parenthesis Error !",
                       }));
}

TEST_F(HeadwordOrder, FirstLetterIsTheUnaccentedCapitalOfTheKeyCutToAByte) {
  const std::vector<std::pair<std::u16string, uint8_t>> cases = {
      {u"âme", 'A'},  {u"Arbre", 'A'},   {u"bateau", 'B'},     {u"été", 'E'},
      {u"ça", 'C'},   {u"l'arbre", 'A'}, {u"(le) zèbre", 'Z'}, {u"ßeta", 0xDF},
      {u"œuf", 0x53},  // U+0153 is not looked up; its low byte stands
      {u"", 0},       {u"3", 0},
  };
  for (const auto& [writing, letter] : cases) {
    EXPECT_EQ(firstLetter(writing, kFrench), letter) << std::string(writing.begin(), writing.end());
  }
}

}  // namespace
}  // namespace lumora
