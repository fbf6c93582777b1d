// The three ways this library computes the CRC-32, exposed so that tests and benchmarks can
// run each one explicitly. Crc32() picks among them; all give identical results.
#pragma once

#include <cstddef>
#include <cstdint>

namespace lumora {

// One table lookup per byte: the reference the faster paths are checked against.
uint32_t Crc32Bytewise(const void* data, size_t n, uint32_t start);

// Sixteen bytes per step through sixteen compile-time tables; portable.
uint32_t Crc32Slicing(const void* data, size_t n, uint32_t start);

// Carry-less multiplication folding (x86-64 with PCLMULQDQ and SSE4.1), 64 bytes per step.
// Shorter buffers, and every buffer where the instructions are missing, go to Crc32Slicing,
// so it is always safe to call.
uint32_t Crc32Folding(const void* data, size_t n, uint32_t start);

// Whether this processor runs Crc32Folding with carry-less multiplication.
bool FoldingAvailable();

}  // namespace lumora
