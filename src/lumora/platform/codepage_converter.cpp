#include <lumora/maintenance.h>
#include <lumora/platform/codepage.h>
#include <lumora/platform/codepage_converter.h>

#include <array>
#include <stdexcept>
#include <string>

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

}  // namespace

bool IsKnownCodePage(uint32_t codePage) {
  for (const auto& entry : kConverters) {
    if (entry.codePage == codePage) return true;
  }
  return false;
}

ConverterPtr OpenCodePageConverter(uint32_t codePage) {
  const char* name = ConverterName(codePage);
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

}  // namespace lumora
