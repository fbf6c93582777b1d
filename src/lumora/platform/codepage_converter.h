// The ICU converter of a Windows code page, set up the way every conversion of the library
// uses it: best-fit fallbacks on, and "?" as the byte for a character the code page lacks.
#pragma once

#include <unicode/ucnv.h>

#include <cstdint>
#include <memory>

namespace lumora {

struct ConverterCloser {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

// The converter of codePage (of kFallbackCodePage when the code page is not known); throws
// std::runtime_error should ICU lack it.
ConverterPtr OpenCodePageConverter(uint32_t codePage);

}  // namespace lumora
