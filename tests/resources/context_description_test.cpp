#include <lumora/resources/context_description.h>

#include <gtest/gtest.h>

namespace lumora {
namespace {

TEST(ContextDescription, NamesTheFieldsOfEachCategory) {
  const struct {
    uint32_t code;
    int32_t word_index;
    const char* text;
  } rows[] = {
      {0, -1, "context nul"},
      {0, 12, "0: Index de mot du glossaire : 12"},
      {0xA4020503, 7, "A4020503: Index de mot du glossaire : 7\nWord: 3"},
      {0x00008000, -1, "8000: Long title"},
      {0x0000C000, -1, "C000: Short title\nNot Valid"},
      {0x00000507, -1, "507: general question\nNumber: 5\nWord: 7\nNot Valid"},
      {0x20008300, -1, "20008300: Computer message\nQuestion: 3, StudentAnswer:2"},
      {0x40000700, -1, "40000700: NoQuestion\nNumber: 7"},
      {0x60044C00, -1, "60044C00: Locution\n NoQuestion: 12, Number: 17"},
      {0x8000C000, -1, "8000C000: Video\n Paragraphe: 3"},
      {0xAAC8C405, -1, "AAC8C405: Exercice 5\nNumber: 100,\nColumn: 3, Sentence: 4\nWord: 5"},
      {0xC3070000, -1, "C3070000: Not supported\nNot Valid"},
      {0xE0000001, -1, "E0000001: Not supported\nWord: 1\nNot Valid"},
  };
  for (const auto& row : rows) {
    const TextContext context(row.code, row.word_index);
    EXPECT_EQ(DescribeContext(&context), row.text) << std::hex << row.code;
  }
  EXPECT_EQ(DescribeContext(nullptr), "No context");
}

}  // namespace
}  // namespace lumora
