// Lookup tables and polynomial arithmetic for the most-significant-bit-first CRC-32, all
// computed at compile time.
// kCrcTables[0][b] is the checksum of the single byte b; kCrcTables[k][b] is the checksum of b
// followed by k zero bytes, which lets the slicing loop take 16 bytes per step with
// independent lookups.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace lumora::crc32_internal {

inline constexpr uint32_t kPolynomial = 0x04C11DB7;
inline constexpr size_t kSlices = 16;

using CrcTable = std::array<uint32_t, 256>;

constexpr CrcTable MakeByteTable() {
  CrcTable table{};
  for (uint32_t i = 0; i < 256; ++i) {
    uint32_t value = i << 24;
    for (int bit = 0; bit < 8; ++bit) {
      value = (value & 0x80000000u) ? (value << 1) ^ kPolynomial : value << 1;
    }
    table[i] = value;
  }
  return table;
}

constexpr std::array<CrcTable, kSlices> MakeSliceTables() {
  std::array<CrcTable, kSlices> tables{};
  tables[0] = MakeByteTable();
  for (size_t k = 1; k < kSlices; ++k) {
    for (size_t b = 0; b < 256; ++b) {
      uint32_t prev = tables[k - 1][b];
      tables[k][b] = (prev << 8) ^ tables[0][prev >> 24];
    }
  }
  return tables;
}

inline constexpr std::array<CrcTable, kSlices> kCrcTables = MakeSliceTables();

// One byte through the reference table.
constexpr uint32_t CrcByte(uint32_t value, uint8_t b) {
  return kCrcTables[0][(value >> 24) ^ b] ^ (value << 8);
}

// x^k modulo the polynomial, as the low 32 coefficients; used to derive folding constants.
constexpr uint32_t XPowModP(unsigned k) {
  uint32_t value = 1;
  for (unsigned i = 0; i < k; ++i) {
    value = (value & 0x80000000u) ? (value << 1) ^ kPolynomial : value << 1;
  }
  return value;
}

static_assert(kCrcTables[0][1] == kPolynomial);
static_assert(XPowModP(32) == kPolynomial);

}  // namespace lumora::crc32_internal
