// CRC-32 as the library's checksummed files use it: polynomial 0x04C11DB7, bits taken most
// significant first, initial value 0 and no final XOR. "123456789" checksums to 0x89A1897F.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumora {

// Checksum of a whole buffer, continuing from `start` (the value of the bytes before it).
uint32_t Crc32(const void* data, size_t n, uint32_t start = 0);

// Running checksum of bytes fed in any number of pieces; feeding nothing changes nothing.
// The lookup tables are built at compile time and never written, so every accumulator shares
// them and an accumulator is just its 32-bit value.
class CrcAccumulator {
 public:
  CrcAccumulator() = default;

  void Update(const void* data, size_t n) { value_ = Crc32(data, n, value_); }
  uint32_t value() const { return value_; }

 private:
  uint32_t value_ = 0;
};

}  // namespace lumora
