// A text with its code page and two arrays of fixed-size records that mark places in it. The
// records are the authoring tool's; the library keeps them unchanged.
//
// Stored form: the CodePageText form (u16 code page, u32 length, UTF-16 units), then a
// RecordArray16, then a typed array of 24-byte records.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/support/wide_text.h>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class MarkedText : public CodePageText {
 public:
  MarkedText() = default;
  MarkedText(uint16_t code_page, WideText text) : CodePageText(code_page, std::move(text)) {}

  const char* ClassName() const override { return "MarkedText"; }
  void Serialize(Archive& ar) override;

  RecordArray16 records16;
  RecordArray24 records24;
};

}  // namespace lumora

#pragma GCC visibility pop
