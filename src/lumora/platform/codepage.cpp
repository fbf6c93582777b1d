#include <lumora/platform/codepage.h>

#include <unicode/ucnv.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <unordered_map>

namespace lumora {
namespace {

struct CodePageName {
  uint16_t codePage;
  const char* converter;
};

constexpr std::array<CodePageName, 14> kConverters{{
    {874, "windows-874"},
    {932, "windows-932"},
    {936, "windows-936"},
    {949, "windows-949"},
    {950, "windows-950"},
    {1250, "windows-1250"},
    {1251, "windows-1251"},
    {1252, "windows-1252"},
    {1253, "windows-1253"},
    {1254, "windows-1254"},
    {1255, "windows-1255"},
    {1256, "windows-1256"},
    {1257, "windows-1257"},
    {1258, "windows-1258"},
}};

const char* ConverterName(uint32_t codePage) {
  for (const auto& entry : kConverters) {
    if (entry.codePage == codePage) return entry.converter;
  }
  return ConverterName(kFallbackCodePage);
}

struct ConverterCloser {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

ConverterPtr OpenConverter(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  ConverterPtr converter(ucnv_open(name, &status));
  if (U_FAILURE(status)) {
    throw std::runtime_error(std::string("no converter for ") + name + ": " + u_errorName(status));
  }
  // Unmappable characters become the converter's best fit, else "?" rather than ICU's
  // default substitute (0x1A), which would read as a control byte.
  ucnv_setFallback(converter.get(), true);
  status = U_ZERO_ERROR;
  ucnv_setSubstChars(converter.get(), "?", 1, &status);
  return converter;
}

// An ICU converter keeps conversion state and must not be shared between threads; one per
// thread and code page avoids both a lock and reopening the converter on every call. The
// one-shot conversions below reset it themselves.
UConverter* Converter(uint32_t codePage) {
  thread_local std::unordered_map<const char*, ConverterPtr> cache;
  const char* name = ConverterName(codePage);
  ConverterPtr& slot = cache[name];
  if (!slot) slot = OpenConverter(name);
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

bool IsKnownCodePage(uint32_t codePage) {
  for (const auto& entry : kConverters) {
    if (entry.codePage == codePage) return true;
  }
  return false;
}

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
