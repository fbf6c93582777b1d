// UTF-8 <-> UTF-16 for the edges where texts meet terminals, files and JSON. Ill-formed input
// (stray continuation bytes, unpaired surrogates) becomes U+FFFD instead of failing.
#pragma once

#include <string>
#include <string_view>

namespace lumora {

std::u16string Utf8ToUtf16(std::string_view text);
std::string Utf16ToUtf8(std::u16string_view text);
// True when every byte of text belongs to a well-formed UTF-8 sequence.
bool IsUtf8(std::string_view text);

}  // namespace lumora
