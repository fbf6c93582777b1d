// Texts of one item in several languages, keyed by a one-byte language number.
//
// Stored form: u32 count, u8 sorted flag, and when count > 0 a ByteArray of the keys followed
// by `count` CodePageText records (u16 code page, u32 length, UTF-16 units).
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class LanguageTexts : public Object {
 public:
  LanguageTexts() = default;
  LanguageTexts(const LanguageTexts& other);
  LanguageTexts& operator=(const LanguageTexts& other);

  const char* ClassName() const override { return "LanguageTexts"; }
  void Serialize(Archive& ar) override;

  uint32_t size() const { return static_cast<uint32_t>(texts_.size()); }
  bool sorted() const { return sorted_; }
  uint8_t KeyAt(uint32_t i) const { return keys_[i]; }
  const CodePageText* TextAt(uint32_t i) const { return texts_[i].get(); }

  // Appends a text (clearing the sorted flag).
  void Add(uint8_t language, CodePageText text);
  // The text of `language`; a copy of the first text when that language has none, and an empty
  // text when the table is empty.
  CodePageText Lookup(uint8_t language) const;

 private:
  std::optional<uint32_t> IndexOf(uint8_t language) const;

  ByteArray keys_;
  std::vector<std::unique_ptr<CodePageText>> texts_;
  bool sorted_ = false;
};

}  // namespace lumora

#pragma GCC visibility pop
