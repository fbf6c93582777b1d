// CRC-32 throughput of each path on one 64 MiB buffer, against zlib's crc32 as the yardstick.
// zlib computes a different (reflected) CRC; only its speed is of interest here.
#include <lumora/support/crc32.h>
#include <lumora/support/crc32_paths.h>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdint>
#include <random>
#include <vector>

namespace {

const std::vector<uint8_t>& Buffer() {
  static const std::vector<uint8_t> buffer = [] {
    std::vector<uint8_t> bytes(64 << 20);
    std::mt19937_64 gen(42);
    for (auto& b : bytes) b = static_cast<uint8_t>(gen());
    return bytes;
  }();
  return buffer;
}

template <typename Checksum>
void Run(benchmark::State& state, Checksum checksum) {
  const std::vector<uint8_t>& data = Buffer();
  for (auto _ : state) benchmark::DoNotOptimize(checksum(data.data(), data.size()));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data.size()));
}

void ReferenceZlib(benchmark::State& state) {
  Run(state, [](const uint8_t* p, size_t n) { return crc32_z(crc32(0, nullptr, 0), p, n); });
}

void Slicing(benchmark::State& state) {
  Run(state, [](const uint8_t* p, size_t n) { return lumora::Crc32Slicing(p, n, 0); });
}

void Folding(benchmark::State& state) {
  if (!lumora::FoldingAvailable()) {
    state.SkipWithError("no carry-less multiplication on this processor");
    return;
  }
  Run(state, [](const uint8_t* p, size_t n) { return lumora::Crc32Folding(p, n, 0); });
}

void Accumulator(benchmark::State& state) {
  Run(state, [](const uint8_t* p, size_t n) {
    lumora::CrcAccumulator crc;
    crc.Update(p, n);
    return crc.value();
  });
}

BENCHMARK(ReferenceZlib)->Name("Crc32/reference_zlib")->Unit(benchmark::kMillisecond);
BENCHMARK(Slicing)->Name("Crc32/slicing")->Unit(benchmark::kMillisecond);
BENCHMARK(Folding)->Name("Crc32/folding")->Unit(benchmark::kMillisecond);
BENCHMARK(Accumulator)->Name("Crc32/accumulator")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
