// How narrow texts become the UTF-8 of descriptions.
//
// One rule for every narrow text: one that is already well-formed UTF-8 is kept as it is (paths
// and values written on this platform are UTF-8); any other is decoded from the code page it was
// written in. That is code page 1252, the Windows ANSI code page Content.ini files hold, for
// configuration values, the paths built from them and the library's own messages and labels;
// and the code page of the discipline's language for the narrow texts of its resources. A narrow
// text of no known code page (a command-line argument) has its ill-formed bytes replaced by
// U+FFFD.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora {

std::string PrintableText(std::string_view narrow, uint32_t codePage);
std::string PrintableText(std::string_view narrow);

// A wide text of the resources as UTF-8.
std::string Utf8(const WideText& text);

// The code page of the narrow texts in the resources of open discipline `id`: that of the
// discipline's language (the low byte of its Param); 1252 when no such discipline is open.
uint32_t DisciplineTextCodePage(uint32_t id);

}  // namespace lumora
