#include <lumora/support/language_table.h>

#include <gtest/gtest.h>

#include <string>

namespace lumora {
namespace {

TEST(LanguageTable, SpotRowsHoldTheirExactValues) {
  struct Case {
    unsigned number;
    std::string name;
    std::string code;
    unsigned charset;
    unsigned leftToRight;
    uint16_t codePage;
    uint16_t langId;
  };
  const Case cases[] = {
      {0, "Undefined", "XXX", 0, 1, 1252, 0x0000},
      {2, "Arabic", "ARA", 178, 0, 1256, 0x0001},
      {6, "Bulgarian", "BUL", 204, 1, 1250, 0x0002},
      {7, "Castilan", "CAS", 0, 1, 1252, 0x0000},
      {10, "Croato", "CRO", 238, 1, 1250, 0x001A},
      {17, "French", "FRA", 0, 1, 1252, 0x000C},
      {28, "Portugese", "POR", 0, 1, 1252, 0x0016},
      {37, "Urdu (Pakistan)", "URP", 0, 0, 1252, 0x0420},
      {53, "Serbian (Cyril)", "SBC", 204, 1, 1251, 0x0C1A},
      {58, "Azeri (Cyrillic)", "AZC", 204, 1, 1251, 0x082C},
      {59, "Kazak", "KAZ", 204, 1, 1251, 0x003F},
      {65, "Uzbek (Cyrillic)", "UZC", 204, 1, 1251, 0x0843},
  };
  for (const auto& c : cases) {
    const LanguageInfo& row = LanguageRow(c.number);
    EXPECT_EQ(row.name, c.name) << c.number;
    EXPECT_EQ(row.code, c.code) << c.number;
    EXPECT_EQ(row.charset, c.charset) << c.number;
    EXPECT_EQ(row.leftToRight, c.leftToRight) << c.number;
    EXPECT_EQ(CodePageOf(c.number), c.codePage) << c.number;
    EXPECT_EQ(LangIdOf(c.number), c.langId) << c.number;
  }
}

TEST(LanguageTable, EveryRowIsWellFormed) {
  EXPECT_EQ(kLanguageCount, 66u);
  for (unsigned number = 0; number < kLanguageCount; ++number) {
    const LanguageInfo& row = LanguageRow(number);
    EXPECT_EQ(std::string(row.code).size(), 3u) << number;
    EXPECT_EQ(row.name[sizeof(row.name) - 1], '\0') << number;
    if (number > 0) {
      EXPECT_EQ(NumberOfCode(row.code), number) << "codes must be unique";
    }
  }
}

TEST(LanguageTable, RowsShareCodePagesAndLanguageIds) {
  for (unsigned number : {9, 39, 42}) EXPECT_EQ(CodePageOf(number), 936) << number;
  for (unsigned number : {24, 43}) {
    EXPECT_EQ(CodePageOf(number), 932) << number;
    EXPECT_EQ(LangIdOf(number), 0x0011) << number;
  }
  EXPECT_EQ(LangIdOf(39), LangIdOf(42));
}

TEST(LanguageTable, NumberOfCodeReadsThreeLettersInAnyCase) {
  EXPECT_EQ(NumberOfCode("fra"), 17);
  EXPECT_EQ(NumberOfCode("FRANCAIS"), 17);
  EXPECT_EQ(NumberOfCode("Rus"), 31);
  EXPECT_EQ(NumberOfCode("XXX"), 0);
  EXPECT_EQ(NumberOfCode(""), 0);
  EXPECT_EQ(NumberOfCode("FR"), 0);
}

TEST(LanguageTable, NumbersBeyondTheTableAnswerRowZero) {
  for (unsigned number : {66u, 200u, 255u, 70000u}) {
    EXPECT_EQ(&LanguageRow(number), &LanguageRow(0)) << number;
    EXPECT_EQ(CodePageOf(number), 1252) << number;
    EXPECT_EQ(LangIdOf(number), 0) << number;
  }
}

}  // namespace
}  // namespace lumora
