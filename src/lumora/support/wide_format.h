// printf-style formatting of UTF-16 templates with type-checked arguments.
//
// Conversions: %d %i (signed), %u, %x %X (unsigned), %c (one UTF-16 unit), %s (a UTF-16
// text) and %%. Flags "-0+ #", a width and a precision (digits or "*", taking an int
// argument) work as in printf; the length modifiers h, hh, l and ll are accepted and ignored,
// because an argument's own type decides its width: -1 passed as int prints as ffffffff with
// %x, as long long as ffffffffffffffff. A null UTF-16 pointer prints "(null)".
//
// The result is never cut short: a statement that outgrows the traditional 4096-unit buffer
// is returned in full, because callers embed user texts of any length.
//
// An unknown conversion, a missing argument or an argument of the wrong kind (a number for
// %s, a text for %d) is a programming error and throws std::invalid_argument.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace lumora {

class FormatArg {
 public:
  template <std::integral T>
  requires(!std::same_as<T, bool>) FormatArg(T value)
      : bits_(static_cast<uint64_t>(value)),
        size_(sizeof(T) < sizeof(int) ? sizeof(int) : sizeof(T)) {}
  FormatArg(const char16_t* text) : is_text_(true), text_(text ? text : u"(null)") {}
  FormatArg(std::u16string_view text) : is_text_(true), text_(text) {}
  // Any text class with a UTF-16 view, so that texts can be passed without converting them.
  template <typename T>
  requires requires(const T& t) {
    { t.view() } -> std::convertible_to<std::u16string_view>;
  }
  FormatArg(const T& text) : is_text_(true), text_(text.view()) {}

  bool is_text() const { return is_text_; }
  std::u16string_view text() const { return text_; }
  // The value read as a signed or unsigned integer of the argument's own width.
  int64_t AsSigned() const;
  uint64_t AsUnsigned() const;

 private:
  uint64_t bits_ = 0;
  uint8_t size_ = 0;  // in bytes; smaller integers count as int, as printf promotes them
  bool is_text_ = false;
  std::u16string_view text_;
};

std::u16string FormatWideArgs(std::u16string_view pattern, std::span<const FormatArg> args);

template <typename... Args>
std::u16string FormatWide(std::u16string_view pattern, const Args&... args) {
  const std::array<FormatArg, sizeof...(Args)> list{FormatArg(args)...};
  return FormatWideArgs(pattern, list);
}

}  // namespace lumora
