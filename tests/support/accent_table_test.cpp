#include <lumora/support/accent_table.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace lumora {
namespace {

std::u16string Upper(std::u16string_view text) {
  std::u16string out;
  for (char16_t c : text) out += AccentTable::UpperPlain(c);
  return out;
}

std::u16string Lower(std::u16string_view text) {
  std::u16string out;
  for (char16_t c : text) out += AccentTable::LowerPlain(c);
  return out;
}

TEST(AccentTable, AccentedLettersLoseTheirAccent) {
  const std::u16string accented = u"ÀÁÂÃÄÅàáâãäåÇçÈÉÊËèéêëÌÍÎÏìíîïÑñÒÓÔÕÖØòóôõöøÙÚÛÜùúûüÝýÿ";
  EXPECT_EQ(Upper(accented), u"AAAAAAAAAAAACCEEEEEEEEIIIIIIIINNOOOOOOOOOOOOUUUUUUUUYYY");
  EXPECT_EQ(Lower(accented), u"aaaaaaaaaaaacceeeeeeeeiiiiiiiinnoooooooooooouuuuuuuuyyy");
}

TEST(AccentTable, LettersWithoutAccentOnlyChangeCase) {
  EXPECT_EQ(Upper(u"azAZÆæÐðÞþ"), u"AZAZÆÆÐÐÞÞ");
  EXPECT_EQ(Lower(u"azAZÆæÐðÞþ"), u"azazææððþþ");
}

TEST(AccentTable, EveryOtherUnitIsLeftAlone) {
  // Every row outside the letters, including the whole 0x80..0xBF range and ß × ÷.
  const std::pair<char16_t, char16_t> ranges[] = {{0x00, 0x40}, {0x5B, 0x60}, {0x7B, 0xBF},
                                                  {0xD7, 0xD7}, {0xDF, 0xDF}, {0xF7, 0xF7}};
  for (auto [first, last] : ranges) {
    for (char16_t c = first; c <= last; ++c) {
      EXPECT_EQ(AccentTable::UpperPlain(c), c) << int{c};
      EXPECT_EQ(AccentTable::LowerPlain(c), c) << int{c};
    }
  }
  // Letters of the Western code page stored above 0xFF, such as Ÿ (its byte 0x9F), are never
  // looked up: Ÿ must not become y.
  const std::u16string beyond = u"ŠšŒœŽžŸ€ĀĳẞＡ";
  EXPECT_EQ(Upper(beyond), beyond);
  EXPECT_EQ(Lower(beyond), beyond);
}

}  // namespace
}  // namespace lumora
