#include <lumora/support/crc32.h>
#include <lumora/support/crc32_paths.h>
#include <lumora/support/crc32_tables.h>

namespace lumora {

namespace {

using crc32_internal::CrcByte;
using crc32_internal::kCrcTables;

// Reads four bytes as one most-significant-first word; compilers turn this into a load and a
// byte swap on little-endian machines and a plain load elsewhere.
inline uint32_t LoadBig32(const uint8_t* p) {
  return uint32_t{p[0]} << 24 | uint32_t{p[1]} << 16 | uint32_t{p[2]} << 8 | uint32_t{p[3]};
}

// Contribution of a word whose last byte is followed by `zeros` further bytes in the step.
inline uint32_t SliceWord(uint32_t word, size_t zeros) {
  return (kCrcTables[zeros + 3][word >> 24] ^ kCrcTables[zeros + 2][(word >> 16) & 0xFF]) ^
         (kCrcTables[zeros + 1][(word >> 8) & 0xFF] ^ kCrcTables[zeros][word & 0xFF]);
}

}  // namespace

uint32_t Crc32Bytewise(const void* data, size_t n, uint32_t start) {
  const auto* p = static_cast<const uint8_t*>(data);
  uint32_t value = start;
  for (size_t i = 0; i < n; ++i) value = CrcByte(value, p[i]);
  return value;
}

uint32_t Crc32Slicing(const void* data, size_t n, uint32_t start) {
  const auto* p = static_cast<const uint8_t*>(data);
  uint32_t value = start;
  // The running value lines up with the first four bytes of each step, so it is XOR-ed into
  // them. Only those four lookups wait for the previous step; the other twelve are summed
  // apart so that the processor can overlap them with it.
  for (; n >= 16; p += 16, n -= 16) {
    uint32_t rest = (SliceWord(LoadBig32(p + 4), 8) ^ SliceWord(LoadBig32(p + 8), 4)) ^
                    SliceWord(LoadBig32(p + 12), 0);
    value = SliceWord(LoadBig32(p) ^ value, 12) ^ rest;
  }
  return Crc32Bytewise(p, n, value);
}

// Folding is faster than slicing from its first full step on (64 bytes), and it hands shorter
// buffers, and every buffer on processors without carry-less multiplication, to slicing itself.
uint32_t Crc32(const void* data, size_t n, uint32_t start) { return Crc32Folding(data, n, start); }

}  // namespace lumora
