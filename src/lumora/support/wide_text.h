// The library's UTF-16 text and its pairing with a Windows code page.
//
// A WideText is a zero-terminated buffer and the number of units that buffer holds before its
// terminator. An empty text normally owns nothing: its characters are one empty text shared by
// the whole library and its capacity reads kNoBuffer. The length is the number of units before
// the first zero.
//
// Stored form: a u32 count of UTF-16 units, then the units little-endian, no terminator.
#pragma once

#include <lumora/platform/archive.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class WideText : public Object {
 public:
  static constexpr uint32_t kNoBuffer = 0xFFFFFFFF;

  WideText() = default;
  explicit WideText(std::u16string_view text);
  WideText(std::string_view narrow, uint32_t codePage) { FromNarrow(narrow, codePage); }
  WideText(const WideText& other);
  WideText& operator=(const WideText& other);
  WideText(WideText&& other) noexcept;
  WideText& operator=(WideText&& other) noexcept;
  ~WideText() override;

  const char* ClassName() const override { return "WideText"; }
  void Serialize(Archive& ar) override;

  // Makes room for length units and terminates the text there. The previous contents are kept
  // only when the own buffer is reused; callers write the new contents right after.
  void Resize(uint32_t length);
  void Assign(std::u16string_view text);

  // Converts the narrow bytes before the first zero from the given code page (its low 16 bits).
  // Control bytes stay controls: the ANSI code pages have no glyph forms for them.
  void FromNarrow(std::string_view narrow, uint32_t codePage);
  // The whole text in the given code page, however many bytes that takes.
  std::string ToNarrow(uint32_t codePage) const;

  // Unit by unit under simple Unicode case folding, so "Straße" and "STRASSE" differ but
  // "Ärger" and "ÄRGER" are equal; texts of different length are never equal.
  bool EqualsIgnoreCase(const WideText& other) const;

  const char16_t* chars() const { return chars_; }
  // Writable units after Resize; only valid while the text owns a buffer.
  char16_t* data() { return chars_; }
  uint32_t capacity() const { return capacity_; }
  bool HasOwnBuffer() const { return capacity_ != kNoBuffer; }
  size_t length() const { return std::char_traits<char16_t>::length(chars_); }
  bool empty() const { return chars_[0] == u'\0'; }
  std::u16string_view view() const { return {chars_, length()}; }

  friend bool operator==(const WideText& a, const WideText& b) { return a.view() == b.view(); }

 private:
  static char16_t* SharedEmpty();
  void Release();

  char16_t* chars_ = SharedEmpty();
  uint32_t capacity_ = kNoBuffer;
};

// The first entry of list equal to text ignoring case; its position goes to *index.
bool FindIgnoreCase(const std::vector<WideText>& list, const WideText& text,
                    size_t* index = nullptr);

class CodePageText : public Object {
 public:
  CodePageText() = default;
  CodePageText(uint16_t codePage, WideText text) : codePage(codePage), text(std::move(text)) {}

  const char* ClassName() const override { return "CodePageText"; }
  // u16 code page, then the text's stored form.
  void Serialize(Archive& ar) override;

  // The text converted with its own code page.
  std::string ToNarrow() const { return text.ToNarrow(codePage); }

  uint16_t codePage = 1252;
  WideText text;
};

}  // namespace lumora

#pragma GCC visibility pop
