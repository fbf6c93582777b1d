#include <lumora/platform/codepage.h>

#include <lumora/platform/codepage_converter.h>

#include <string>
#include <unordered_map>

namespace lumora {
namespace {

// An ICU converter keeps conversion state and must not be shared between threads; one per
// thread and code page avoids both a lock and reopening the converter on every call. The
// one-shot conversions below reset it themselves.
UConverter* Converter(uint32_t codePage) {
  thread_local std::unordered_map<uint32_t, ConverterPtr> cache;
  // Unknown code pages share the fallback's converter, however many different ones turn up.
  ConverterPtr& slot = cache[IsKnownCodePage(codePage) ? codePage : kFallbackCodePage];
  if (!slot) slot = OpenCodePageConverter(codePage);
  return slot.get();
}

// Runs a one-shot ICU conversion into out, sized first by guess and, should the guess be too
// small, once more by the size the converter reports.
template <typename Out, typename Convert>
Out ConvertAll(size_t guess, Convert convert) {
  Out out(guess, 0);
  UErrorCode status = U_ZERO_ERROR;
  int32_t produced = convert(out.data(), static_cast<int32_t>(out.size()), &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    out.assign(static_cast<size_t>(produced), 0);
    status = U_ZERO_ERROR;
    produced = convert(out.data(), static_cast<int32_t>(out.size()), &status);
  }
  if (U_FAILURE(status)) return {};
  out.resize(static_cast<size_t>(produced));
  return out;
}

}  // namespace

std::u16string DecodeCodePage(std::string_view bytes, uint32_t codePage) {
  if (bytes.empty()) return {};
  UConverter* converter = Converter(codePage);
  // One UTF-16 unit per byte is enough for every known code page.
  return ConvertAll<std::u16string>(
      bytes.size(), [&](char16_t* out, int32_t capacity, UErrorCode* status) {
        return ucnv_toUChars(converter, out, capacity, bytes.data(),
                             static_cast<int32_t>(bytes.size()), status);
      });
}

std::string EncodeCodePage(std::u16string_view text, uint32_t codePage) {
  if (text.empty()) return {};
  UConverter* converter = Converter(codePage);
  size_t guess = text.size() * static_cast<size_t>(ucnv_getMaxCharSize(converter));
  return ConvertAll<std::string>(guess, [&](char* out, int32_t capacity, UErrorCode* status) {
    return ucnv_fromUChars(converter, out, capacity, text.data(), static_cast<int32_t>(text.size()),
                           status);
  });
}

}  // namespace lumora
