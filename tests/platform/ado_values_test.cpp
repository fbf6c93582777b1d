// Field values and dates of the database objects: the conversions the field readers rely on
// and the day-count form of dates.
#include <lumora/platform/ado/error.h>
#include <lumora/platform/ado/ole_date.h>
#include <lumora/platform/ado/variant.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>

namespace lumora::ado {
namespace {

// The HRESULT `convert` raises, or 0 when it converts.
HRESULT RaisedBy(const std::function<void()>& convert) {
  try {
    convert();
  } catch (const Error& e) {
    return e.hr();
  }
  return 0;
}

TEST(AdoVariant, ConversionsToIntegerRoundHalfToEvenAndReportRangeAndTypeFaults) {
  struct Case {
    Variant value;
    std::optional<int32_t> i4;  // nothing: raises
    HRESULT hr;
  };
  const Case cases[] = {
      {Variant::I4(-7), -7, 0},
      {Variant::UI1(200), 200, 0},
      {Variant::Bstr(u" 42 "), 42, 0},
      {Variant::Bstr(u"2.5"), 2, 0},
      {Variant::Bstr(u"3.5"), 4, 0},
      {Variant::Date(45000.75), 45001, 0},
      {Variant::Bstr(u"12abc"), std::nullopt, kTypeMismatch},
      {Variant::Bstr(u""), std::nullopt, kTypeMismatch},
      {Variant::Bstr(u"3000000000"), std::nullopt, kOverflow},
      {Variant(), std::nullopt, kTypeMismatch},
  };
  for (const Case& c : cases) {
    if (c.i4) {
      EXPECT_EQ(c.value.ToI4(), *c.i4);
    } else {
      EXPECT_EQ(RaisedBy([&] { c.value.ToI4(); }), c.hr) << c.hr;
    }
  }
  EXPECT_EQ(Variant::I4(255).ToUI1(), 255);
  EXPECT_EQ(RaisedBy([] { Variant::I4(256).ToUI1(); }), kOverflow);
  EXPECT_EQ(RaisedBy([] { Variant::I4(-1).ToUI1(); }), kOverflow);
  EXPECT_EQ(RaisedBy([] { Variant().ToUI1(); }), kTypeMismatch);
}

TEST(AdoVariant, TextFormsOfNumbersAndDatesAndNullHasNone) {
  EXPECT_EQ(Variant::I4(-12).ToBstr(), u"-12");
  EXPECT_EQ(Variant::UI1(7).ToBstr(), u"7");
  EXPECT_EQ(Variant::Bstr(u"Курс").ToBstr(), u"Курс");
  const double date = OleDateFromParts({2002, 3, 14, 9, 5, 0});
  EXPECT_EQ(Variant::Date(date).ToBstr(), u"2002/03/14 09:05:00");
  EXPECT_EQ(RaisedBy([] { Variant().ToBstr(); }), kTypeMismatch);
}

TEST(AdoDate, DayCountsCountFromTheLastDaysOf1899) {
  EXPECT_DOUBLE_EQ(OleDateFromParts({1899, 12, 30, 0, 0, 0}), 0.0);
  EXPECT_DOUBLE_EQ(OleDateFromParts({1900, 1, 1, 12, 0, 0}), 2.5);
  // Before day 0 the fraction still counts forward from midnight.
  EXPECT_DOUBLE_EQ(OleDateFromParts({1899, 12, 29, 6, 0, 0}), -1.25);
  const DateParts back = PartsFromOleDate(-1.25);
  EXPECT_EQ(DateText(back), "1899/12/29 06:00:00");
  for (const DateParts& p : {DateParts{2024, 2, 29, 23, 59, 59}, DateParts{100, 1, 1, 0, 0, 1},
                             DateParts{9999, 12, 31, 12, 30, 0}}) {
    EXPECT_EQ(DateText(PartsFromOleDate(OleDateFromParts(p))), DateText(p));
  }
}

TEST(AdoDate, StoredTextsInSlashAndIsoFormsAndNothingElse) {
  const struct {
    const char* text;
    const char* parsed;  // null: not a date
  } cases[] = {
      {"2024/01/15 09:30:00", "2024/01/15 09:30:00"},
      {"2024-01-15 09:30:00", "2024/01/15 09:30:00"},
      {"2024-01-15T09:30:00", "2024/01/15 09:30:00"},
      {"2024/01/15", "2024/01/15 00:00:00"},
      {"2024/01-15", nullptr},
      {"2023/02/29 00:00:00", nullptr},
      {"2024/01/15 24:00:00", nullptr},
      {"2024/01/15 09:30", nullptr},
      {"2024/01/15 09:30:00 ", nullptr},
      {"15/01/2024", nullptr},
      {"", nullptr},
  };
  for (const auto& c : cases) {
    const auto parts = ParseDateText(c.text);
    if (c.parsed) {
      ASSERT_TRUE(parts) << c.text;
      EXPECT_EQ(DateText(*parts), c.parsed);
    } else {
      EXPECT_FALSE(parts) << c.text;
    }
  }
}

}  // namespace
}  // namespace lumora::ado
