#include <lumora/resources/context_labels.h>
#include <lumora/resources/report_format.h>
#include <lumora/resources/type_catalog.h>

#include <optional>

namespace lumora {
namespace {

const char kError[] = "Error";

// Titles, messages, questions, answers and videos: one label for both forms.
std::string PlaceLabel(ContextCode c) {
  switch (c.TopByte()) {
    case 0x00:
      if (c.LongTitle()) return "Long title";
      if (c.ShortTitle()) return "Short title";
      return kError;
    case 0x20:
      return FormatReportLine("Computer msg. Q%02d R%d", c.Question(), c.AnswerNumber());
    case 0x40:
      return FormatReportLine("Question %02d", c.Question());
    case 0x60:
      return FormatReportLine("Student answer Q%02d Part %d", c.Question(), c.AnswerPart());
    case 0x80:
      return FormatReportLine("Pedagogical video Part %02d", c.Paragraph());
    default:
      return kError;
  }
}

// Phonetics: no column is the rule's name, column 1 a word, higher columns a part of a word
// (word in bits 10..8, part in bits 13..11).
std::string PhoneticsPart(ContextCode c) {
  if (c.Column() == 0) return " - Rule name";
  if (c.Column() == 1) return FormatReportLine(" - WORD%d", c.Question() + 1);
  return FormatReportLine(" - [WORD%u] PART%u", c.Bits(10, 8), c.Bits(13, 11));
}

// Grammar and sentence practice number their parts from 1 in bits 16..12, part 1 being the
// example, and the texts of a part in bits 11..8.
std::string PracticePart(ContextCode c) {
  const int part = static_cast<int>(c.Bits(16, 12));
  const int text = static_cast<int>(c.Bits(11, 8));
  if (part == 1) return text != 0 ? " - [EXAMPLE_SOLUTION]" : " - [EXAMPLE]";
  if (text != 0) return FormatReportLine(" - [PART%d] TEXT%d", part - 1, text);
  return FormatReportLine(" - PART%d", part - 1);
}

// What follows the exercise's head in both labels; none for a code that is no labelled
// exercise. The column says which side or which part of the exercise the text belongs to.
std::optional<std::string> ExercisePart(ContextCode c) {
  const int q = c.Question();
  const bool column = c.Column() != 0;
  switch (c.TopByte()) {
    case 0xA2:
      return FormatReportLine(column ? " - DST%d" : " - SRC%d", q);
    case 0xA4:
      return FormatReportLine(column ? " - RECOPART%d" : " - PART%d", q);
    case 0xA6:
      return FormatReportLine(column ? " - PART%d" : " - TEXT%d", q);
    case 0xA8:
      return column ? " - TEXT" : " - TITLE";
    case 0xAA:
      return FormatReportLine(" - [PART%d] TEXT%d", c.Column(), q);
    case 0xAE:
      return column ? FormatReportLine(" - PART%d", q) : " - TEXT";
    case 0xB0:
      if (c.Column() == 0) return " - question";
      return FormatReportLine(c.Column() == 1 ? " - GOOD%d" : " - BAD%d", q);
    case 0xB2:
      return FormatReportLine(column ? " - COMMENT%d" : " - DEST%d", q);
    case 0xB4:
      return PhoneticsPart(c);
    case 0xB8:
    case 0xBA:
    case 0xBE:
      return PracticePart(c);
    default:
      return std::nullopt;
  }
}

// The item-based types are named by their item number alone.
const char* ItemTypeName(uint32_t top_byte) {
  switch (top_byte) {
    case 0xC1:
      return ExerciseDisplayName(16);
    case 0xC2:
      return ExerciseDisplayName(17);
    case 0xC3:
      return ExerciseDisplayName(20);
    case 0xC4:
      return "PatchWork (common)";
    case 0xC5:
      return ExerciseDisplayName(21);
    default:
      return nullptr;
  }
}

std::string ItemTechnicalLabel(ContextCode c) {
  const int item = c.ItemNumber();
  switch (c.TopByte()) {
    case 0xC1:
      return FormatReportLine("type%u.%03d", c.Bits(28, 24) + 15, item);
    case 0xC2:
      return FormatReportLine("%s n\xB0%d", ItemTypeName(0xC2), item);
    case 0xC3:
      return FormatReportLine("type20.%03d", item);
    case 0xC4:
      return FormatReportLine("type20com.%03d", item);
    case 0xC5:
      return FormatReportLine("type21.%03d", item);
    default:
      return PlaceLabel(c);
  }
}

}  // namespace

std::string TechnicalLabel(ContextCode code) {
  if (auto part = ExercisePart(code)) {
    return FormatReportLine("type%d.%03d%s", code.ExerciseType(), code.ExerciseNumber(),
                            part->c_str());
  }
  return ItemTechnicalLabel(code);
}

std::string ReadableLabel(const TextContext& context) {
  const ContextCode code = context.code;
  if (auto part = ExercisePart(code)) {
    return FormatReportLine("%s n\xB0%d%s", ExerciseDisplayName(code.ExerciseType()),
                            code.ExerciseNumber(), part->c_str());
  }
  if (const char* name = ItemTypeName(code.TopByte())) {
    return FormatReportLine("%s n\xB0%d", name, code.ItemNumber());
  }
  return PlaceLabel(code);
}

}  // namespace lumora
