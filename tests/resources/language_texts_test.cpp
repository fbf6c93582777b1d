#include <lumora/resources/language_texts.h>

#include <gtest/gtest.h>

#include "fixtures/archive_bytes.h"

namespace lumora {
namespace {

using testing::Bytes;
using testing::Concat;
using testing::U32;

LanguageTexts Texts(std::initializer_list<std::pair<uint8_t, const char16_t*>> texts) {
  LanguageTexts out;
  for (auto& [language, text] : texts) out.Add(language, CodePageText(1252, WideText(text)));
  return out;
}

TEST(LanguageTexts, LookupFallsBackToTheFirstText) {
  LanguageTexts texts = Texts({{17, u"bonjour"}, {18, u"hallo"}});
  EXPECT_EQ(texts.Lookup(18).text.view(), u"hallo");
  EXPECT_EQ(texts.Lookup(33).text.view(), u"bonjour");
  EXPECT_TRUE(LanguageTexts().Lookup(17).text.empty());
}

TEST(LanguageTexts, SortedTablesBisect) {
  LanguageTexts texts = Texts({{5, u"a"}, {9, u"b"}, {12, u"c"}});
  LanguageTexts sorted;
  Bytes bytes = testing::StoreObject(texts);
  bytes[4] = 1;  // mark the stored keys ascending
  ASSERT_TRUE(testing::LoadObject(bytes, sorted));
  EXPECT_TRUE(sorted.sorted());
  EXPECT_EQ(sorted.Lookup(12).text.view(), u"c");
  EXPECT_EQ(sorted.Lookup(9).text.view(), u"b");
}

TEST(LanguageTexts, StoredFormAndTruncation) {
  LanguageTexts texts = Texts({{31, u"\u041F"}});
  texts.Add(0, CodePageText(1251, WideText(u"")));
  Bytes bytes = testing::StoreObject(texts);
  EXPECT_EQ(bytes, Concat({U32(2),
                           {0},
                           U32(1),
                           U32(2),
                           U32(0),
                           {31, 0},
                           {0xE4, 0x04},
                           U32(1),
                           {0x1F, 0x04},  // 1252, one unit
                           {0xE3, 0x04},
                           U32(0)}));  // 1251, empty
  LanguageTexts back;
  ASSERT_TRUE(testing::LoadObject(bytes, back));
  EXPECT_EQ(back.TextAt(1)->codePage, 1251);
  for (size_t cut = 0; cut < bytes.size(); ++cut) {
    EXPECT_FALSE(testing::LoadObject(Bytes(bytes.begin(), bytes.begin() + cut), back)) << cut;
  }
}

}  // namespace
}  // namespace lumora
