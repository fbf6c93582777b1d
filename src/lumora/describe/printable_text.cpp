#include <lumora/describe/printable_text.h>
#include <lumora/frame/opened_disciplines.h>
#include <lumora/maintenance.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/utf8.h>
#include <lumora/support/language_table.h>

namespace lumora {

std::string PrintableText(std::string_view narrow, uint32_t codePage) {
  if (IsUtf8(narrow)) return std::string(narrow);
  return Utf16ToUtf8(DecodeCodePage(narrow, codePage));
}

std::string PrintableText(std::string_view narrow) {
  if (IsUtf8(narrow)) return std::string(narrow);
  return Utf16ToUtf8(Utf8ToUtf16(narrow));
}

std::string Utf8(const WideText& text) { return Utf16ToUtf8(text.view()); }

uint32_t DisciplineTextCodePage(uint32_t id) {
  OpenedDiscipline discipline;
  return FindOpenedDiscipline(id, &discipline) ? CodePageOf(static_cast<uint8_t>(discipline.param))
                                               : kWindowsAnsi;
}

}  // namespace lumora
