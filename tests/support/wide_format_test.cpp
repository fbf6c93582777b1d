#include <lumora/support/wide_format.h>
#include <lumora/support/wide_text.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace lumora {
namespace {

TEST(WideFormat, ConversionsFlagsWidthsAndPrecisions) {
  const WideText text(u"wide");
  const std::u16string owned = u"str";
  const char16_t* none = nullptr;
  struct Case {
    std::u16string actual;
    std::u16string expected;
  };
  const Case cases[] = {
      {FormatWide(u"%d %i %u", -5, 7, 3u), u"-5 7 3"},
      {FormatWide(u"%x %X %#x %#X %#x", 255, 255, 255, 255, 0), u"ff FF 0xff 0XFF 0"},
      {FormatWide(u"%x|%x|%u", -1, -1LL, -1), u"ffffffff|ffffffffffffffff|4294967295"},
      {FormatWide(u"%d %d %d", int8_t{-1}, uint8_t{200}, char16_t{0xFFFF}), u"-1 200 65535"},
      {FormatWide(u"%d", LLONG_MIN), u"-9223372036854775808"},
      {FormatWide(u"%+d|% d|%+d|%+u", 5, 5, -5, 5u), u"+5| 5|-5|5"},
      {FormatWide(u"%5d|%-5d|%05d|%-05d|%05d", 42, 42, 42, 42, -42),
       u"   42|42   |00042|42   |-0042"},
      {FormatWide(u"%.3d|%.0d|%5.3d|%-6.2x|%08.3d", 7, 0, 7, 10, 7), u"007||  007|0a    |     007"},
      {FormatWide(u"%#06x|%+05d", 26, 3), u"0x001a|+0003"},
      {FormatWide(u"%*d|%-*d|%*d|%.*d", 4, 1, 3, 2, -3, 3, 2, 4), u"   1|2  |3  |04"},
      {FormatWide(u"%s|%5s|%-5s|%.2s|%.*s", u"abc", std::u16string_view(u"ab"), text, owned, 1,
                  owned),
       u"abc|   ab|wide |st|s"},
      {FormatWide(u"%s|%s", u"Ελληνικά 😀", none), u"Ελληνικά 😀|(null)"},
      {FormatWide(u"%c%c%3c|%-2c|", u'x', 0x263A, 'y', u'z'), u"x☺  y|z |"},
      {FormatWide(u"100%% %ld %lld %hd %hhu %lu", 1L, 2LL, 3, 4, 5UL), u"100% 1 2 3 4 5"},
      {FormatWide(u"no conversions"), u"no conversions"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.actual, c.expected);
}

TEST(WideFormat, MisuseIsReportedNotGuessed) {
  EXPECT_THROW(FormatWide(u"%s", 5), std::invalid_argument);
  EXPECT_THROW(FormatWide(u"%d", u"five"), std::invalid_argument);
  EXPECT_THROW(FormatWide(u"%d %d", 5), std::invalid_argument);
  EXPECT_THROW(FormatWide(u"%f", 5), std::invalid_argument);
  EXPECT_THROW(FormatWide(u"50%"), std::invalid_argument);
}

TEST(WideFormat, TextKeepsLongResultsWhole) {
  WideText text;
  const std::u16string full(4096, u'a');
  text.Assign(FormatWide(u"%s", full));
  EXPECT_EQ(text.view(), full);
  EXPECT_EQ(text.capacity(), 4096u);

  text.Assign(FormatWide(u"%4096d", 7));
  EXPECT_EQ(text.length(), 4096u);
  EXPECT_EQ(text.view().back(), u'7');

  // Statements carrying long user texts must not be cut.
  const std::u16string half(5000, u'b');
  text.Assign(FormatWide(u"INSERT '%s' '%s'", half, half));
  EXPECT_EQ(text.length(), 10000u + 12u);
  EXPECT_EQ(text.view().substr(text.length() - 3), u"bb'");
}

}  // namespace
}  // namespace lumora
