// Written forms as the glossary's text search compares them: lower case without accents, unit by
// unit, for the units below 256; every other unit stays as it is.
#pragma once

#include <lumora/support/accent_table.h>

#include <array>
#include <string>
#include <string_view>

namespace lumora {

class PlainFolding {
 public:
  PlainFolding() {
    for (char16_t unit = 0; unit < 256; ++unit) lower_[unit] = AccentTable::LowerPlain(unit);
  }
  // A table, so that comparing a word costs no calls.
  char16_t operator()(char16_t unit) const { return unit < 256 ? lower_[unit] : unit; }

  std::u16string Fold(std::u16string_view text) const {
    std::u16string folded(text);
    for (char16_t& unit : folded) unit = (*this)(unit);
    return folded;
  }

 private:
  std::array<char16_t, 256> lower_;
};

}  // namespace lumora
