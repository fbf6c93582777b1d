// The whole check of a content root against reading every file of the tree once, both timed by
// the wall clock in the same run (target: the check takes at most 3 times the reference's time).
//
// The tree is the sample content at LUMORA_BENCH_SCALE (default 600), written once into
// LUMORA_BENCH_DIR (default /tmp). Both sides report the bytes of the tree's files, so their
// ratio is a ratio of times. The run also prints, once, how long each check takes run alone and
// how many things it looked at.
#include <lumora/check/content_check.h>
#include <lumora/platform/file.h>

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <lumora/sample/sample_content.h>

namespace {

namespace fs = std::filesystem;

class CheckSample {
 public:
  CheckSample() {
    const char* dir = std::getenv("LUMORA_BENCH_DIR");
    std::string pattern = std::string(dir ? dir : "/tmp") + "/lumora-check-bench-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
      error_ = "no scratch folder";
      return;
    }
    scratch_ = pattern + "/";
    const char* scale = std::getenv("LUMORA_BENCH_SCALE");
    lumora::sample::SampleOptions options;
    options.scale = scale ? std::max(1, std::atoi(scale)) : 600;
    if (!lumora::sample::WriteSampleContent(scratch_, options, &error_)) return;
    for (const auto& entry : fs::recursive_directory_iterator(scratch_)) {
      if (!entry.is_regular_file()) continue;
      files_.push_back(entry.path().string());
      bytes_ += entry.file_size();
    }
  }
  ~CheckSample() {
    std::error_code error;
    if (!scratch_.empty()) fs::remove_all(scratch_, error);
  }

  const std::string& error() const { return error_; }
  const std::string& root() const { return scratch_; }
  const std::vector<std::string>& files() const { return files_; }
  uint64_t bytes() const { return bytes_; }

 private:
  std::string error_;
  std::string scratch_;
  std::vector<std::string> files_;
  uint64_t bytes_ = 0;
};

const CheckSample& Sample() {
  static const CheckSample sample;
  return sample;
}

void CheckReference(benchmark::State& state) {
  const CheckSample& sample = Sample();
  if (!sample.error().empty()) return state.SkipWithError(sample.error().c_str());
  for (auto _ : state) {
    uint64_t read = 0;
    std::string bytes;
    for (const std::string& file : sample.files()) {
      if (lumora::ReadWholeFile(file, uint64_t{1} << 30, bytes) == lumora::WholeFile::kRead) {
        read += bytes.size();
      }
    }
    benchmark::DoNotOptimize(read);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * sample.bytes()));
}

// Where the time goes, printed once: each check run alone (its opening of the root included;
// the index and media checks then read the resource files themselves, as no resources check
// kept them).
void PrintEachCheck(const CheckSample& sample) {
  static bool printed = false;
  if (printed) return;
  printed = true;
  for (const std::string& name : lumora::CheckNames()) {
    lumora::CheckOptions options;
    options.checks = {name};
    const auto start = std::chrono::steady_clock::now();
    const auto reports = lumora::CheckContentRoot(sample.root(), options);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    std::fprintf(stderr, "%-15s %8.1f ms alone  %llu checked\n", name.c_str(), took.count(),
                 static_cast<unsigned long long>(reports.empty() ? 0 : reports[0].checked));
  }
}

void Check(benchmark::State& state) {
  const CheckSample& sample = Sample();
  if (!sample.error().empty()) return state.SkipWithError(sample.error().c_str());
  PrintEachCheck(sample);
  uint64_t findings = 0;
  for (auto _ : state) {
    const auto reports = lumora::CheckContentRoot(sample.root(), lumora::CheckOptions{});
    findings = 0;
    for (const auto& report : reports) findings += report.findings.size();
  }
  state.counters["findings"] = static_cast<double>(findings);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * sample.bytes()));
}

BENCHMARK(CheckReference)
    ->Name("Check/reference_read_every_file")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Check)->Name("Check/CheckContentRoot")->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
