#include <lumora/platform/codepage.h>
#include <lumora/support/language_table.h>

#include <gtest/gtest.h>

namespace lumora {
namespace {

constexpr uint16_t kSingleByte[] = {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258};

TEST(CodePage, EveryLanguageCodePageHasAConverter) {
  for (unsigned number = 0; number < kLanguageCount; ++number) {
    uint16_t codePage = CodePageOf(number);
    EXPECT_TRUE(IsKnownCodePage(codePage)) << codePage;
    EXPECT_EQ(DecodeCodePage("Ab1", codePage), u"Ab1") << codePage;
  }
}

// Every byte a single-byte code page assigns must come back as the same byte, or texts change
// each time they are loaded and stored again.
TEST(CodePage, SingleByteCodePagesRoundTrip) {
  for (uint16_t codePage : kSingleByte) {
    int unassigned = 0;
    for (int byte = 0x20; byte <= 0xFF; ++byte) {
      std::string narrow(1, static_cast<char>(byte));
      std::u16string wide = DecodeCodePage(narrow, codePage);
      ASSERT_EQ(wide.size(), 1u) << codePage << " byte " << byte;
      if (wide[0] == u'\uFFFD') {
        ++unassigned;
        continue;
      }
      EXPECT_EQ(EncodeCodePage(wide, codePage), narrow) << codePage << " byte " << byte;
    }
    EXPECT_LE(unassigned, 11) << codePage;
    if (codePage >= 1250 && codePage <= 1252) {
      EXPECT_EQ(unassigned, 0) << codePage;
    }
  }
}

TEST(CodePage, WesternBytesWithoutCharacterStayControls) {
  EXPECT_EQ(DecodeCodePage("\x81\x8D\x8F\x90\x9D", 1252), u"\u0081\u008D\u008F\u0090\u009D");
  EXPECT_EQ(EncodeCodePage(u"\u0081\u008D\u008F\u0090\u009D", 1252), "\x81\x8D\x8F\x90\x9D");
  EXPECT_EQ(DecodeCodePage("\x80\x8A\x9F", 1252), u"€ŠŸ");
}

TEST(CodePage, DoubleByteSentencesRoundTrip) {
  struct Case {
    uint16_t codePage;
    std::u16string text;
    std::string firstBytes;
  };
  const Case cases[] = {
      {932, u"日本語のテキストです。", "\x93\xFA"},
      {936, u"中文文本，简体字。", "\xD6\xD0"},
      {949, u"한국어 텍스트입니다.", "\xC7\xD1"},
      {950, u"中文繁體字。", "\xA4\xA4"},
  };
  for (const auto& c : cases) {
    std::string narrow = EncodeCodePage(c.text, c.codePage);
    EXPECT_EQ(narrow.substr(0, 2), c.firstBytes) << c.codePage;
    EXPECT_EQ(DecodeCodePage(narrow, c.codePage), c.text) << c.codePage;
  }
}

TEST(CodePage, UnexpressibleCharactersGetBestFitOrQuestionMark) {
  EXPECT_EQ(EncodeCodePage(u"Привет", 1252), "??????");
  EXPECT_EQ(EncodeCodePage(u"ＡＢＣ", 1252), "ABC");
  EXPECT_EQ(EncodeCodePage(u"a\xD800z", 1252), "a?z");
  for (uint16_t codePage : {874, 932, 936, 949, 950, 1250, 1253, 1255, 1256, 1257, 1258}) {
    EXPECT_EQ(EncodeCodePage(u"x\u16A0", codePage), "x?") << codePage;  // a runic letter
  }
}

TEST(CodePage, UnknownCodePagesConvertAsWestern) {
  EXPECT_FALSE(IsKnownCodePage(437));
  EXPECT_FALSE(IsKnownCodePage(0));
  EXPECT_EQ(DecodeCodePage("\x80\xE9", 437), u"€é");
  EXPECT_EQ(EncodeCodePage(u"€é", 65001), "\x80\xE9");
}

}  // namespace
}  // namespace lumora
