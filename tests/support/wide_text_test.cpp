#include <lumora/platform/archive.h>
#include <lumora/platform/stream.h>
#include <lumora/support/wide_format.h>
#include <lumora/support/wide_text.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace lumora {
namespace {

const char16_t* SharedEmpty() { return WideText().chars(); }

void ExpectNoOwnBuffer(const WideText& text, const char* what) {
  EXPECT_FALSE(text.HasOwnBuffer()) << what;
  EXPECT_EQ(text.capacity(), WideText::kNoBuffer) << what;
  EXPECT_EQ(text.chars(), SharedEmpty()) << what;
  EXPECT_TRUE(text.empty()) << what;
}

TEST(WideText, ResizeReusesOnlyALargerBuffer) {
  WideText text;
  ExpectNoOwnBuffer(text, "new");
  text.Resize(5);
  EXPECT_EQ(text.capacity(), 5u);
  EXPECT_EQ(text.chars()[5], u'\0');
  const char16_t* buffer = text.chars();
  text.Resize(3);
  EXPECT_EQ(text.chars(), buffer);
  EXPECT_EQ(text.capacity(), 5u);
  EXPECT_EQ(text.chars()[3], u'\0');
  text.Resize(5);  // equal to the capacity: a new buffer of the same size
  EXPECT_EQ(text.capacity(), 5u);
  text.Resize(9);
  EXPECT_EQ(text.capacity(), 9u);
  EXPECT_EQ(text.chars()[9], u'\0');
  text.Resize(0);
  ExpectNoOwnBuffer(text, "after Resize(0)");
}

TEST(WideText, EmptyTextsOwnNothing) {
  WideText filled(u"filled");
  WideText empty;
  filled = empty;
  ExpectNoOwnBuffer(filled, "assigned from empty");
  ExpectNoOwnBuffer(WideText(empty), "copy of empty");
  ExpectNoOwnBuffer(WideText("", 1252), "FromNarrow empty");
  ExpectNoOwnBuffer(WideText(std::string("\0abc", 4), 1252), "FromNarrow leading zero");
  WideText formatted(u"x");
  formatted.Assign(FormatWide(u"%s", u""));
  ExpectNoOwnBuffer(formatted, "Format empty");
}

TEST(WideText, CopiesAreExactAndSelfAssignmentChangesNothing) {
  WideText source;
  source.Resize(20);
  std::u16string_view hello = u"hello";
  std::copy(hello.begin(), hello.end(), source.data());
  source.data()[5] = u'\0';
  WideText copy(source);
  EXPECT_EQ(copy.view(), u"hello");
  EXPECT_EQ(copy.capacity(), 5u);  // sized to the text, not to the source's buffer

  const char16_t* buffer = copy.chars();
  WideText& alias = copy;
  copy = alias;
  EXPECT_EQ(copy.chars(), buffer);
  EXPECT_EQ(copy.view(), u"hello");

  copy.Assign(copy.view());  // a view of its own, full-size buffer
  EXPECT_EQ(copy.view(), u"hello");
  copy.Assign(copy.view().substr(1));
  EXPECT_EQ(copy.view(), u"ello");

  WideText moved(std::move(copy));
  EXPECT_EQ(moved.view(), u"ello");
  ExpectNoOwnBuffer(copy, "moved from");
}

TEST(WideText, NarrowConversionUsesTheGivenCodePage) {
  const std::string cyrillic = "\xCF\xF0\xE8\xE2\xE5\xF2";  // "Привет" in 1251
  WideText text(cyrillic, 1251);
  EXPECT_EQ(text.view(), u"Привет");
  EXPECT_EQ(text.ToNarrow(1251), cyrillic);
  EXPECT_EQ(text.ToNarrow(1252), "??????");
  // Only the low 16 bits name the code page; conversion stops at the first zero byte.
  EXPECT_EQ(WideText(cyrillic + std::string(1, '\0') + "tail", 0x10000 + 1251).view(), u"Привет");
  EXPECT_EQ(WideText().ToNarrow(1251), "");
  EXPECT_EQ(CodePageText(1251, text).ToNarrow(), cyrillic);
  EXPECT_EQ(CodePageText().codePage, 1252);
}

TEST(WideText, CaseIsIgnoredUnitByUnit) {
  struct Case {
    std::u16string a, b;
    bool equal;
  };
  const Case cases[] = {
      {u"t_Translations", u"T_TRANSLATIONS", true},
      {u"Ärger", u"äRGER", true},
      {u"Привет", u"ПРИВЕТ", true},
      {u"", u"", true},
      {u"abc", u"abcd", false},
      {u"Straße", u"STRASSE", false},
      {u"abc", u"abd", false},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(WideText(c.a).EqualsIgnoreCase(WideText(c.b)), c.equal) << c.equal;
  }
  const std::vector<WideText> tables = {WideText(u"Lessons"), WideText(u"t_Packages"),
                                        WideText(u"T_PACKAGES")};
  size_t index = 99;
  EXPECT_TRUE(FindIgnoreCase(tables, WideText(u"t_packages"), &index));
  EXPECT_EQ(index, 1u);
  EXPECT_TRUE(FindIgnoreCase(tables, WideText(u"LESSONS")));
  index = 99;
  EXPECT_FALSE(FindIgnoreCase(tables, WideText(u"Glossary"), &index));
  EXPECT_EQ(index, 99u);
}

std::vector<uint8_t> Store(Object& object) {
  MemoryStream stream;
  Archive ar(stream, Archive::Mode::kStore);
  object.Serialize(ar);
  ar.Flush();
  return stream.bytes();
}

void Load(Object& object, std::vector<uint8_t> bytes) {
  MemoryStream stream(std::move(bytes));
  Archive ar(stream, Archive::Mode::kLoad);
  object.Serialize(ar);
}

TEST(WideText, StoredFormIsCountAndLittleEndianUnits) {
  WideText text(u"Aé€");
  const std::vector<uint8_t> golden = {3, 0, 0, 0, 0x41, 0, 0xE9, 0, 0xAC, 0x20};
  EXPECT_EQ(Store(text), golden);
  WideText loaded(u"previous");
  Load(loaded, golden);
  EXPECT_EQ(loaded.view(), u"Aé€");

  CodePageText pair(1251, WideText(u"Да"));
  const std::vector<uint8_t> pair_golden = {0xE3, 0x04, 2, 0, 0, 0, 0x14, 0x04, 0x30, 0x04};
  EXPECT_EQ(Store(pair), pair_golden);
  CodePageText loaded_pair;
  Load(loaded_pair, pair_golden);
  EXPECT_EQ(loaded_pair.codePage, 1251);
  EXPECT_EQ(loaded_pair.text.view(), u"Да");

  WideText empty;
  EXPECT_EQ(Store(empty), (std::vector<uint8_t>{0, 0, 0, 0}));
  WideText loaded_empty(u"previous");
  Load(loaded_empty, {0, 0, 0, 0});
  ExpectNoOwnBuffer(loaded_empty, "loaded empty");
}

TEST(WideText, ShortStoredTextIsEndOfFile) {
  const std::vector<std::vector<uint8_t>> cut = {
      {3, 0, 0, 0, 0x41, 0, 0x42, 0},  // one unit missing
      {3, 0, 0, 0, 0x41, 0, 0x42, 0, 0x43},
      {0xFF, 0xFF, 0xFF, 0xFF},  // a damaged count must not be allocated
      {2, 0},
  };
  for (const auto& bytes : cut) {
    WideText text;
    try {
      Load(text, bytes);
      ADD_FAILURE() << "loaded " << bytes.size() << " bytes";
    } catch (const ArchiveError& e) {
      EXPECT_EQ(e.kind(), ArchiveError::Kind::kEndOfFile);
    }
  }
  CodePageText pair;
  EXPECT_THROW(Load(pair, {0xE3}), ArchiveError);
}

}  // namespace
}  // namespace lumora
