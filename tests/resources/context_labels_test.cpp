#include <lumora/resources/context_labels.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace lumora {
namespace {

struct LabelRow {
  uint32_t code;
  const char* technical;
  const char* readable;
  bool valid;
};

// The tables are written in UTF-8 for legibility; labels are Windows-1252, where "°" is one
// byte.
std::string Western(std::string_view utf8) {
  std::string narrow;
  for (size_t i = 0; i < utf8.size(); ++i) {
    if (utf8.substr(i, 2) == "\xC2\xB0") ++i;
    narrow += utf8[i];
  }
  return narrow;
}

const LabelRow kRows[] = {
    {0x00004000, "Short title", "Short title", true},
    {0x000040FF, "Short title", "Short title", true},
    {0x00014000, "Short title", "Short title", false},
    {0x00008000, "Long title", "Long title", true},
    {0x0000C000, "Long title", "Long title", false},
    {0x00000500, "Error", "Error", false},
    {0x20008300, "Computer msg. Q03 R2", "Computer msg. Q03 R2", true},
    {0x20048300, "Computer msg. Q03 R2", "Computer msg. Q03 R2", false},
    {0x20000300, "Computer msg. Q03 R0", "Computer msg. Q03 R0", false},
    {0x40000700, "Question 07", "Question 07", true},
    {0x40004700, "Question 07", "Question 07", false},
    {0x40000000, "Question 00", "Question 00", false},
    {0x60044C00, "Student answer Q12 Part 17", "Student answer Q12 Part 17", true},
    {0x600C4C00, "Student answer Q12 Part 17", "Student answer Q12 Part 17", false},
    {0x8000C000, "Pedagogical video Part 03", "Pedagogical video Part 03", true},
    {0x8000C100, "Pedagogical video Part 03", "Pedagogical video Part 03", false},
    {0x8040C000, "Pedagogical video Part 03", "Pedagogical video Part 03", false},
    {0xA2080200, "type1.004 - SRC2", "Word Association n°4 - SRC2", true},
    {0xA2084200, "type1.004 - DST2", "Word Association n°4 - DST2", true},
    {0xA4028500, "type2.001 - RECOPART5", "Word Order n°1 - RECOPART5", true},
    {0xA4020500, "type2.001 - PART5", "Word Order n°1 - PART5", true},
    {0xA6184300, "type3.012 - PART3", "Fill-in-the-Blanks n°12 - PART3", true},
    {0xA6180300, "type3.012 - TEXT3", "Fill-in-the-Blanks n°12 - TEXT3", true},
    {0xA8044900, "type4.002 - TEXT", "Mysterious Phrase n°2 - TEXT", true},
    {0xA8040000, "type4.002 - TITLE", "Mysterious Phrase n°2 - TITLE", true},
    {0xAAC8C400, "type5.100 - [PART3] TEXT4", "Dictation n°100 - [PART3] TEXT4", true},
    {0xAE0A8100, "type7.005 - PART1", "The Right Word n°5 - PART1", true},
    {0xAE0A0100, "type7.005 - TEXT", "The Right Word n°5 - TEXT", true},
    {0xB0060200, "type8.003 - question", "Video Questions n°3 - question", true},
    {0xB0064200, "type8.003 - GOOD2", "Video Questions n°3 - GOOD2", true},
    {0xB0074200, "type8.003 - BAD2", "Video Questions n°3 - BAD2", true},
    {0xB2124600, "type9.009 - COMMENT6", "Picture/Word Association n°9 - COMMENT6", true},
    {0xB2120600, "type9.009 - DEST6", "Picture/Word Association n°9 - DEST6", true},
    {0xB4020000, "type10.001 - Rule name", "Phonetics n°1 - Rule name", true},
    {0xB4024400, "type10.001 - WORD5", "Phonetics n°1 - WORD5", true},
    {0xB4029A00, "type10.001 - [WORD2] PART3", "Phonetics n°1 - [WORD2] PART3", true},
    {0xB80C1200, "type12.006 - [EXAMPLE_SOLUTION]",
     "Grammar Practice/Sentence Practice n°6 - [EXAMPLE_SOLUTION]", true},
    {0xBA0C1000, "type13.006 - [EXAMPLE]", "Grammar Practice/Sentence Practice n°6 - [EXAMPLE]",
     true},
    {0xBE044300, "type15.002 - [PART3] TEXT3",
     "Grammar Practice/Sentence Practice n°2 - [PART3] TEXT3", true},
    {0xB8043000, "type12.002 - PART2", "Grammar Practice/Sentence Practice n°2 - PART2", true},
    {0xB8040000, "type12.002 - PART-1", "Grammar Practice/Sentence Practice n°2 - PART-1", false},
    {0xC1050100, "type16.005", "Grammatical Nature n°5", true},
    {0xC1052100, "type16.005", "Grammatical Nature n°5", false},
    {0xC1050200, "type16.005", "Grammatical Nature n°5", false},
    {0xC2090200, "Cultural Card n°9", "Cultural Card n°9", true},
    {0xC2000200, "Cultural Card n°0", "Cultural Card n°0", false},
    {0xC3070000, "type20.007", "PatchWork n°7", false},
    {0xC40C0100, "type20com.012", "PatchWork (common) n°12", true},
    {0xC5FF0300, "type21.255", "Riddle n°255", true},
    // Top bytes that name no place: odd exercise bytes, the unlabelled types 6, 11 and 14,
    // and everything past the item-based types.
    {0xAC020500, "Error", "Error", false},
    {0xB6020500, "Error", "Error", false},
    {0xBC020500, "Error", "Error", false},
    {0xA3020500, "Error", "Error", false},
    {0x21000100, "Error", "Error", false},
    {0xC6010100, "Error", "Error", false},
    {0xFF010100, "Error", "Error", false},
};

TEST(ContextLabels, EveryKindOfPlace) {
  for (const LabelRow& row : kRows) {
    const TextContext context(row.code, -1);
    SCOPED_TRACE(testing::Message() << std::hex << row.code);
    EXPECT_EQ(TechnicalLabel(row.code), Western(row.technical));
    EXPECT_EQ(ReadableLabel(context), Western(row.readable));
    EXPECT_EQ(context.IsValid(), row.valid);
  }
}

TEST(ContextLabels, CodeZeroIsValidOnlyForAGlossaryWord) {
  EXPECT_TRUE(TextContext(0, 0).IsValid());
  EXPECT_FALSE(TextContext(0, -1).IsValid());
  EXPECT_EQ(TechnicalLabel(0), "Error");
}

}  // namespace
}  // namespace lumora
