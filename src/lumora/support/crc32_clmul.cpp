// CRC-32 by folding with carry-less multiplication. The data is seen as one long polynomial;
// a 128-bit block H*x^64 + L lying D bits before a later block contributes, modulo the CRC
// polynomial P, the same as H*(x^(D+64) mod P) + L*(x^D mod P), a value of at most 96 bits
// that can be XOR-ed into that later block. Repeating this collapses the whole buffer into the
// last 16 bytes, which the table path then finishes together with any shorter tail.
#include <lumora/support/crc32_paths.h>
#include <lumora/support/crc32_tables.h>

#if defined(__x86_64__)
#include <immintrin.h>

#include <array>
#endif

namespace lumora {

#if defined(__x86_64__)

namespace {

using crc32_internal::XPowModP;

struct FoldConstants {
  uint64_t high;
  uint64_t low;
};

constexpr FoldConstants FoldBy(unsigned bits) { return {XPowModP(bits + 64), XPowModP(bits)}; }

constexpr size_t kLaneBytes = 16;
constexpr size_t kLaneBits = kLaneBytes * 8;
// Independent lanes keep several multiplications in flight at once.
constexpr size_t kLanes = 4;
constexpr size_t kStepBytes = kLaneBytes * kLanes;

// Each step moves every lane forward by a whole step.
constexpr FoldConstants kFoldStep = FoldBy(kLaneBits * kLanes);
constexpr FoldConstants kFoldLane = FoldBy(kLaneBits);

// At the end lane i lies (kLanes - 1 - i) lanes before the last one.
constexpr std::array<FoldConstants, kLanes - 1> kFoldToLast = [] {
  std::array<FoldConstants, kLanes - 1> constants{};
  for (size_t i = 0; i < kLanes - 1; ++i) constants[i] = FoldBy((kLanes - 1 - i) * kLaneBits);
  return constants;
}();

__attribute__((target("pclmul,sse4.1"))) inline __m128i Constants(FoldConstants k) {
  return _mm_set_epi64x(static_cast<int64_t>(k.high), static_cast<int64_t>(k.low));
}

// The CRC takes bits most significant first, so the first byte in memory must become the top
// byte of the register: reverse the sixteen bytes.
__attribute__((target("pclmul,sse4.1"))) inline __m128i ReverseBytes(__m128i x) {
  const __m128i reverse = _mm_set_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
  return _mm_shuffle_epi8(x, reverse);
}

__attribute__((target("pclmul,sse4.1"))) inline __m128i LoadBlock(const uint8_t* p) {
  return ReverseBytes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
}

__attribute__((target("pclmul,sse4.1"))) inline __m128i FoldInto(__m128i x, __m128i k,
                                                                 __m128i next) {
  __m128i high = _mm_clmulepi64_si128(x, k, 0x11);
  __m128i low = _mm_clmulepi64_si128(x, k, 0x00);
  return _mm_xor_si128(_mm_xor_si128(high, low), next);
}

// Needs at least kStepBytes of data.
__attribute__((target("pclmul,sse4.1"))) uint32_t FoldBuffer(const uint8_t* p, size_t n,
                                                             uint32_t start) {
  __m128i lane[kLanes];
  for (size_t i = 0; i < kLanes; ++i) lane[i] = LoadBlock(p + i * kLaneBytes);
  // The value so far lines up with the first four bytes of the data.
  lane[0] = _mm_xor_si128(lane[0], _mm_set_epi32(static_cast<int>(start), 0, 0, 0));
  p += kStepBytes;
  n -= kStepBytes;

  const __m128i by_step = Constants(kFoldStep);
  for (; n >= kStepBytes; p += kStepBytes, n -= kStepBytes) {
    for (size_t i = 0; i < kLanes; ++i) {
      lane[i] = FoldInto(lane[i], by_step, LoadBlock(p + i * kLaneBytes));
    }
  }

  __m128i x = lane[kLanes - 1];
  for (size_t i = kLanes - 1; i-- > 0;) x = FoldInto(lane[i], Constants(kFoldToLast[i]), x);
  const __m128i by_lane = Constants(kFoldLane);
  for (; n >= kLaneBytes; p += kLaneBytes, n -= kLaneBytes) x = FoldInto(x, by_lane, LoadBlock(p));

  alignas(16) uint8_t last[kLaneBytes];
  _mm_store_si128(reinterpret_cast<__m128i*>(last), ReverseBytes(x));
  return Crc32Slicing(p, n, Crc32Slicing(last, kLaneBytes, 0));
}

}  // namespace

bool FoldingAvailable() {
  static const bool available = [] {
    __builtin_cpu_init();
    return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1");
  }();
  return available;
}

uint32_t Crc32Folding(const void* data, size_t n, uint32_t start) {
  if (n < kStepBytes || !FoldingAvailable()) return Crc32Slicing(data, n, start);
  return FoldBuffer(static_cast<const uint8_t*>(data), n, start);
}

#else

bool FoldingAvailable() { return false; }

uint32_t Crc32Folding(const void* data, size_t n, uint32_t start) {
  return Crc32Slicing(data, n, start);
}

#endif

}  // namespace lumora
