// The articles and pronouns a headword may start with, per language, longest forms first, so
// that "the house" is filed under "house" and "to go" under "go".
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace lumora {

// The prefixes of a language number in the order they are tried; empty for a language
// without a list.
std::span<const std::u16string_view> HeadwordPrefixes(uint8_t language);

}  // namespace lumora
