#include "printable_text.h"

#include <lumora/platform/codepage.h>
#include <lumora/platform/utf8.h>

#include <iostream>

namespace lumora::cli {

std::string PrintableText(std::string_view narrow, uint32_t codePage) {
  if (IsUtf8(narrow)) return std::string(narrow);
  return Utf16ToUtf8(DecodeCodePage(narrow, codePage));
}

std::string PrintableText(std::string_view narrow) {
  if (IsUtf8(narrow)) return std::string(narrow);
  return Utf16ToUtf8(Utf8ToUtf16(narrow));
}

void PrintJson(const nlohmann::ordered_json& value) {
  std::cout << value.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace lumora::cli
