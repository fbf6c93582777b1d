// What the library tells a host about one configured discipline, and the description record
// every open discipline keeps. No stored form of its own.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class DisciplineInfo : public Object {
 public:
  const char* ClassName() const override { return "DisciplineInfo"; }

  uint8_t Type = 0;   // low byte of the section's Type; only 0 is ever opened
  int32_t Param = 0;  // the section's Param, whole
  ByteArray values;   // distinct group keys of the discipline's descriptions, ascending
};

}  // namespace lumora

#pragma GCC visibility pop
