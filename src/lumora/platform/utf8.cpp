#include <lumora/maintenance.h>
#include <lumora/platform/utf8.h>

#include <unicode/ustring.h>
#include <unicode/utf8.h>

namespace lumora {
namespace {

constexpr UChar32 kReplacement = 0xFFFD;

}  // namespace

std::u16string Utf8ToUtf16(std::string_view text) {
  // A UTF-8 sequence never yields more UTF-16 units than it has bytes.
  std::u16string out(text.size(), u'\0');
  int32_t length = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8WithSub(out.data(), static_cast<int32_t>(out.size()), &length, text.data(),
                       static_cast<int32_t>(text.size()), kReplacement, nullptr, &status);
  if (U_FAILURE(status)) return {};
  out.resize(static_cast<size_t>(length));
  return out;
}

std::string Utf16ToUtf8(std::u16string_view text) {
  // Three bytes per unit covers both BMP characters and U+FFFD for a lone surrogate.
  std::string out(text.size() * 3, '\0');
  int32_t length = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strToUTF8WithSub(out.data(), static_cast<int32_t>(out.size()), &length, text.data(),
                     static_cast<int32_t>(text.size()), kReplacement, nullptr, &status);
  if (U_FAILURE(status)) return {};
  out.resize(static_cast<size_t>(length));
  return out;
}

bool IsUtf8(std::string_view text) {
  const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
  const auto length = static_cast<int32_t>(text.size());
  for (int32_t i = 0; i < length;) {
    UChar32 c;
    U8_NEXT(bytes, i, length, c);
    if (c < 0) return false;
  }
  return true;
}

}  // namespace lumora
