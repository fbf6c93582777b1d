// The glossary at the largest size its 16-bit word numbers allow (bench_glossary.h):
//   - `load` against reading the same set files and computing their CRC-32 (target: at most
//     twice the reference's time), with the heap the loaded glossary holds, and the most heap
//     the load holds at once, against the files' size (target: at most three times);
//   - one `findWords` query against `grep -F -c` over a file of the same written forms already
//     reduced to plain lower case, one per line (target: at most twice the reference's time).
#include <lumora/lexicon/glossary.h>
#include <lumora/platform/utf8.h>
#include <lumora/support/crc32.h>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "bench_glossary.h"
#include "heap_peak.h"

namespace {

using lumora::bench::Glossary;

constexpr const char* kQueries[] = {"tra", "ele", "zu", "ane"};

void ReferenceReadAndChecksum(benchmark::State& state) {
  if (!Glossary().ready()) return state.SkipWithError("no glossary");
  for (auto _ : state) {
    for (const std::string& file : Glossary().setFiles()) {
      std::ifstream in(file, std::ios::binary);
      std::vector<char> bytes((std::istreambuf_iterator<char>(in)),
                              std::istreambuf_iterator<char>());
      benchmark::DoNotOptimize(lumora::Crc32(bytes.data(), bytes.size()));
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Glossary().setBytes()));
}

void Load(benchmark::State& state) {
  if (!Glossary().ready()) return state.SkipWithError("no glossary");
  double held = 0;
  double peak = 0;
  for (auto _ : state) {
    const size_t before = mallinfo2().uordblks;
    auto counter = std::make_unique<HeapPeak>();
    auto glossary = std::make_unique<lumora::CGloV6>();
    if (!glossary->load(Glossary().folder())) {
      return state.SkipWithError("the glossary did not load");
    }
    // Freeing the tables is the discipline's closing, not its loading.
    state.PauseTiming();
    held = static_cast<double>(mallinfo2().uordblks - before);
    peak = static_cast<double>(counter->peak());
    counter.reset();
    glossary.reset();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Glossary().setBytes()));
  state.counters["set_bytes"] = static_cast<double>(Glossary().setBytes());
  state.counters["heap_to_files"] = held / static_cast<double>(Glossary().setBytes());
  state.counters["peak_to_files"] = peak / static_cast<double>(Glossary().setBytes());
}

void ReferenceGrep(benchmark::State& state) {
  if (!Glossary().ready()) return state.SkipWithError("no glossary");
  size_t query = 0;
  for (auto _ : state) {
    const std::string command = std::string("grep -F -c ") + kQueries[query++ % 4] + " " +
                                Glossary().plainForms() + " > /dev/null";
    if (std::system(command.c_str()) == -1) return state.SkipWithError("grep did not run");
  }
}

void FindWords(benchmark::State& state) {
  if (!Glossary().ready()) return state.SkipWithError("no glossary");
  lumora::CGloV6 glossary;
  if (!glossary.load(Glossary().folder())) return state.SkipWithError("the glossary did not load");
  lumora::WordBuckets buckets;
  size_t query = 0;
  size_t found = 0;
  for (auto _ : state) {
    glossary.findWords(buckets, 0, lumora::Utf8ToUtf16(kQueries[query++ % 4]), 0, 0, false);
    for (const auto& bucket : buckets) found += bucket.size();
  }
  state.counters["found_per_query"] = static_cast<double>(found) / state.iterations();
}

BENCHMARK(ReferenceReadAndChecksum)
    ->Name("GlossaryLoad/reference_read_and_crc32")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Name("GlossaryLoad/CGloV6_load")->Unit(benchmark::kMillisecond);
BENCHMARK(ReferenceGrep)->Name("GlossaryFind/reference_grep_F_c")->Unit(benchmark::kMillisecond);
BENCHMARK(FindWords)->Name("GlossaryFind/findWords")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
