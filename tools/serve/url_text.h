// The texts of a request line: the path split into percent-decoded segments, the query decoded
// into parameters, and numbers as they appear in paths and parameters.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::serve {

// Splits a path as sent ("/a/b%2Fc") at "/" and decodes each segment once. Refused (nullopt):
// a path not starting with "/", an empty segment ("//", a trailing "/"), a broken escape, and a
// segment that decodes to "." or ".." or holds "/", "\", NUL or another control character, so
// that no segment can name anything but one entry of a folder. "/" gives no segments.
std::optional<std::vector<std::string>> SplitPath(std::string_view raw_path);

// Decodes %XX escapes (and "+" as a space when `plus_is_space`); nullopt on a broken escape.
std::optional<std::string> PercentDecode(std::string_view text, bool plus_is_space);

// Escapes everything but letters, digits and "-._~", so a file name becomes one path segment.
std::string PercentEncode(std::string_view text);

// A 32-bit number written in decimal or as 0x-prefixed hexadecimal, nothing else: no sign, no
// blanks, no empty text, nothing beyond 0xFFFFFFFF.
std::optional<uint32_t> ParseNumber(std::string_view text);

}  // namespace lumora::serve
