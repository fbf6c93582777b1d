#include <lumora/resources/context_description.h>
#include <lumora/resources/report_format.h>

namespace lumora {
namespace {

std::string DescribeCode(ContextCode c) {
  switch (c.DescriptionCategory()) {
    case 1:
      return FormatReportLine("Computer message\nQuestion: %d, StudentAnswer:%d", c.Question(),
                              c.AnswerNumber());
    case 2:
      return FormatReportLine("NoQuestion\nNumber: %d", c.Question());
    case 3:
      return FormatReportLine("Locution\n NoQuestion: %d, Number: %d", c.Question(),
                              c.AnswerPart());
    case 4:
      return FormatReportLine("Video\n Paragraphe: %d", c.Paragraph());
    case 5:
      return FormatReportLine("Exercice %d\nNumber: %d,\nColumn: %d, Sentence: %d",
                              c.ExerciseType(), c.ExerciseNumber(), c.Column(), c.Question());
    case 8:
      return "Short title";
    case 9:
      return "Long title";
    case 10:
      return FormatReportLine("general question\nNumber: %d", c.Question());
    default:
      return "Not supported";
  }
}

}  // namespace

std::string DescribeContext(const TextContext* context) {
  if (context == nullptr) return "No context";
  const ContextCode code = context->code;
  std::string text = FormatReportLine("%lX: ", static_cast<unsigned long>(code.value));
  if (context->wordIndex >= 0) {
    text += FormatReportLine("Index de mot du glossaire : %d", context->wordIndex);
  } else if (code.value == 0) {
    return "context nul";
  } else {
    text += DescribeCode(code);
  }
  if (code.WordNumber() != 0) text += FormatReportLine("\nWord: %d", code.WordNumber());
  if (!context->IsValid()) text += "\nNot Valid";
  return text;
}

}  // namespace lumora
