// The value encodings inside set-file records, over the library's little-endian archive.
// Fixed-width numbers use Archive::Io directly; byte lists are ByteArray's stored form (element
// size 1 as the marker, count, growth step, bytes).
#pragma once

#include <lumora/lexicon/small_list.h>
#include <lumora/platform/archive.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

// A text inside a set-file record. A glossary holds up to 65,534 words, each with several texts
// (its written form, translations, sound and reco texts), many of them empty, and a grammar or
// classification tens of thousands of titles and labels; as a string object each would cost 32
// bytes before its units. This one is a single pointer to one heap block holding the length and
// the UTF-16 units, and no block at all when empty.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class RecordText {
 public:
  RecordText() = default;
  RecordText(std::u16string_view text) { Assign(text); }
  RecordText(const std::u16string& text) { Assign(text); }
  RecordText(const char16_t* text) { Assign(text); }
  RecordText(const RecordText& other) { Assign(other.view()); }
  RecordText(RecordText&& other) noexcept : block_(other.block_) { other.block_ = nullptr; }
  RecordText& operator=(const RecordText& other) {
    if (this != &other) Assign(other.view());
    return *this;
  }
  RecordText& operator=(RecordText&& other) noexcept {
    if (this != &other) {
      delete[] block_;
      block_ = other.block_;
      other.block_ = nullptr;
    }
    return *this;
  }
  ~RecordText() { delete[] block_; }

  uint32_t size() const {
    uint32_t length = 0;
    if (block_ != nullptr) std::memcpy(&length, block_, sizeof length);
    return length;
  }
  bool empty() const { return block_ == nullptr; }
  const char16_t* data() const { return block_ == nullptr ? u"" : block_ + kHeader; }
  char16_t* begin() { return block_ == nullptr ? nullptr : block_ + kHeader; }
  char16_t* end() { return begin() + size(); }

  std::u16string_view view() const { return {data(), size()}; }
  operator std::u16string_view() const { return view(); }
  std::u16string str() const { return std::u16string(view()); }

  // Makes room for `length` units, their values unspecified, and returns where they start: a
  // reader fills them in place.
  char16_t* Resize(uint32_t length);

  friend bool operator==(const RecordText& a, std::u16string_view b) { return a.view() == b; }

 private:
  // The block starts with the length as two units, then the text.
  static constexpr uint32_t kHeader = 2;

  void Assign(std::u16string_view text);

  char16_t* block_ = nullptr;
};

}  // namespace lumora

#pragma GCC visibility pop

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// u32 count of UTF-16 code units, then the units little-endian; no terminator.
void IoText(Archive& ar, RecordText& text);

// u32 count, then the values.
void IoU32List(Archive& ar, U32List& values);

// Element size 1 as the marker, u32 count, u32 growth step, then the bytes. A stored growth step
// of 0xFFFFFFFF leaves the list's own.
void IoByteList(Archive& ar, ByteList& bytes);

// A byte holding 0 or 1; any other byte read counts as 1.
void IoFlag(Archive& ar, uint8_t& flag);

}  // namespace lumora

#pragma GCC visibility pop
