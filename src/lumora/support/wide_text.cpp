#include <lumora/platform/archive.h>
#include <lumora/platform/codepage.h>
#include <lumora/support/wide_text.h>

#include <unicode/uchar.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace lumora {

char16_t* WideText::SharedEmpty() {
  static char16_t empty[1] = {u'\0'};
  return empty;
}

WideText::WideText(std::u16string_view text) { Assign(text); }

WideText::WideText(const WideText& other) : Object(other) { Assign(other.view()); }

WideText& WideText::operator=(const WideText& other) {
  if (this != &other) Assign(other.view());
  return *this;
}

WideText::WideText(WideText&& other) noexcept
    : Object(other), chars_(other.chars_), capacity_(other.capacity_) {
  other.chars_ = SharedEmpty();
  other.capacity_ = kNoBuffer;
}

WideText& WideText::operator=(WideText&& other) noexcept {
  if (this != &other) {
    Release();
    std::swap(chars_, other.chars_);
    std::swap(capacity_, other.capacity_);
  }
  return *this;
}

WideText::~WideText() { Release(); }

void WideText::Release() {
  if (HasOwnBuffer()) delete[] chars_;
  chars_ = SharedEmpty();
  capacity_ = kNoBuffer;
}

void WideText::Resize(uint32_t length) {
  if (length == 0) {
    Release();
    return;
  }
  if (HasOwnBuffer() && length < capacity_) {
    chars_[length] = u'\0';
    return;
  }
  // No own buffer, or one too small: the old contents are not carried over.
  Release();
  chars_ = new char16_t[static_cast<size_t>(length) + 1];
  chars_[length] = u'\0';
  capacity_ = length;
}

void WideText::Assign(std::u16string_view text) {
  // A part of this very text would be freed by a growing Resize before it is copied.
  std::less_equal<const char16_t*> at_most;
  if (HasOwnBuffer() && at_most(chars_, text.data()) && at_most(text.data(), chars_ + capacity_)) {
    Assign(std::u16string(text));
    return;
  }
  // An empty text owns nothing, however it was made.
  Resize(static_cast<uint32_t>(text.size()));
  std::copy(text.begin(), text.end(), chars_);
}

void WideText::FromNarrow(std::string_view narrow, uint32_t codePage) {
  narrow = narrow.substr(0, narrow.find('\0'));
  // The code page travels in 32 bits but only its low 16 name it.
  Assign(DecodeCodePage(narrow, codePage & 0xFFFF));
}

std::string WideText::ToNarrow(uint32_t codePage) const {
  return EncodeCodePage(view(), codePage & 0xFFFF);
}

bool WideText::EqualsIgnoreCase(const WideText& other) const {
  std::u16string_view a = view();
  std::u16string_view b = other.view();
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char16_t x, char16_t y) {
    return u_foldCase(x, U_FOLD_CASE_DEFAULT) == u_foldCase(y, U_FOLD_CASE_DEFAULT);
  });
}

void WideText::Serialize(Archive& ar) {
  if (ar.IsStoring()) {
    std::u16string_view text = view();
    ar.WriteU32(static_cast<uint32_t>(text.size()));
    std::vector<uint8_t> bytes(text.size() * 2);
    for (size_t i = 0; i < text.size(); ++i) EncodeU16(&bytes[2 * i], text[i]);
    if (!bytes.empty()) ar.Write(bytes.data(), bytes.size());
    return;
  }
  uint32_t count = ar.ReadU32();
  // A damaged count must fail as a short file before it turns into a huge allocation.
  ar.Require(uint64_t{count} * 2);
  std::vector<uint8_t> bytes(size_t{count} * 2);
  ar.Read(bytes.data(), bytes.size());
  Resize(count);
  for (uint32_t i = 0; i < count; ++i) chars_[i] = static_cast<char16_t>(DecodeU16(&bytes[2 * i]));
}

bool FindIgnoreCase(const std::vector<WideText>& list, const WideText& text, size_t* index) {
  for (size_t i = 0; i < list.size(); ++i) {
    if (list[i].EqualsIgnoreCase(text)) {
      if (index) *index = i;
      return true;
    }
  }
  return false;
}

void CodePageText::Serialize(Archive& ar) {
  ar.Io(codePage);
  text.Serialize(ar);
}

}  // namespace lumora
