// Conversion between the narrow bytes of a Windows ANSI code page and UTF-16.
//
// Only the code pages that the language table uses are known: 874, 932, 936, 949, 950 and
// 1250..1258. Any other number converts as code page 1252, so that a text with a damaged code
// page still reads as Western text instead of failing.
//
// Decoding maps every byte the code page assigns to its character; the bytes 0x81, 0x8D, 0x8F,
// 0x90 and 0x9D of code page 1252 (and the like of its siblings) become the C1 control of the
// same value, so that such bytes survive a round trip. A byte or byte sequence with no mapping
// at all becomes U+FFFD. Encoding a character the code page cannot express gives the
// converter's best-fit byte where it has one, otherwise "?".
//
// Safe to call from several threads: each thread keeps its own converters.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lumora {

inline constexpr uint16_t kFallbackCodePage = 1252;

// True for the code pages listed above; the others convert as kFallbackCodePage.
bool IsKnownCodePage(uint32_t codePage);

std::u16string DecodeCodePage(std::string_view bytes, uint32_t codePage);
std::string EncodeCodePage(std::u16string_view text, uint32_t codePage);

}  // namespace lumora
