// Reading a large headword table (100,000 records) through the set-file reader, against
// reading the same file and computing its CRC-32, the least any checksummed read must do. Also
// reports what one record costs in memory once loaded.
#include <lumora/lexicon/glossary_records.h>
#include <lumora/lexicon/set_file.h>
#include <lumora/support/crc32.h>

#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr uint32_t kRecords = 100000;
constexpr std::u16string_view kTable = u"t_Glo_FNs";

// A t_Glo_FNs record behind a high word, so that 100,000 distinct keys fit.
struct WideHeadword {
  uint16_t high = 0;
  lumora::GloFNRecord fn;

  uint32_t Key() const { return uint32_t{high} << 16 | fn.fnId; }
  void Serialize(lumora::Archive& ar, uint32_t schema) {
    ar.Io(high);
    fn.Serialize(ar, schema);
  }
};

class HeadwordTable {
 public:
  HeadwordTable() {
    char pattern[] = "/tmp/lumora-bench-XXXXXX";
    if (mkdtemp(pattern) == nullptr) return;
    folder_ = std::string(pattern) + "/";
    lumora::SetTable<lumora::GloFNRecord> table;
    for (uint32_t i = 0; i < kRecords; ++i) {
      lumora::GloFNRecord r;
      r.fnId = static_cast<uint16_t>(i);
      r.writingId = static_cast<uint16_t>(i * 7);
      r.kind = static_cast<uint8_t>(i % 5);
      r.codes = {i, i + 1};
      r.classIds = {i % 300};
      r.level = static_cast<uint8_t>(i % 4);
      r.letterId = static_cast<uint16_t>(i % 30 + 1);
      records_.push_back({static_cast<uint16_t>(i >> 16), std::move(r)});
    }
    if (!lumora::WriteSetFile(path(), 2, [this](lumora::Archive& ar) {
          ar.WriteU32(kRecords);
          for (WideHeadword& r : records_) r.Serialize(ar, 2);
        })) {
      std::fprintf(stderr, "could not write %s\n", path().c_str());
      folder_.clear();
    }
  }
  ~HeadwordTable() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }

  bool ready() const { return !folder_.empty(); }
  const std::string& folder() const { return folder_; }
  std::string path() const { return lumora::SetFilePath(folder_, kTable); }

 private:
  std::string folder_;
  std::vector<WideHeadword> records_;
};

const HeadwordTable& Table() {
  static const HeadwordTable table;
  return table;
}

size_t FileSize() { return std::filesystem::file_size(Table().path()); }

void ReferenceReadAndChecksum(benchmark::State& state) {
  if (!Table().ready()) return state.SkipWithError("no table file");
  for (auto _ : state) {
    std::ifstream in(Table().path(), std::ios::binary);
    std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    benchmark::DoNotOptimize(lumora::Crc32(bytes.data(), bytes.size()));
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * FileSize()));
}

// Memory held by a loaded table, per record: the record slots, and the values of any list too
// long to live inside its record.
double BytesPerRecord(const lumora::SetTable<WideHeadword>& table) {
  double total = static_cast<double>(table.records().capacity() * sizeof(WideHeadword));
  const auto on_heap = [](const lumora::U32List& list) {
    return list.size() > lumora::U32List::kInline ? list.size() : 0;
  };
  for (const WideHeadword& r : table) {
    const size_t values = on_heap(r.fn.codes) + on_heap(r.fn.classIds);
    total += static_cast<double>(values * sizeof(uint32_t));
  }
  return table.empty() ? 0 : total / table.size();
}

// Each pass reads into a new table. Freeing the table read before is the owner's cost when it
// discards a table, not the reader's, so it happens outside the timed part.
void ReadSetTable(benchmark::State& state) {
  if (!Table().ready()) return state.SkipWithError("no table file");
  auto table = std::make_unique<lumora::SetTable<WideHeadword>>();
  for (auto _ : state) {
    state.PauseTiming();
    table = std::make_unique<lumora::SetTable<WideHeadword>>();
    state.ResumeTiming();
    if (!lumora::ReadSetTable(Table().folder(), kTable, lumora::SetFamily::kGlossary, *table)) {
      return state.SkipWithError("the table did not read");
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * FileSize()));
  state.counters["records"] = static_cast<double>(table->size());
  state.counters["bytes_per_record"] = BytesPerRecord(*table);
}

BENCHMARK(ReferenceReadAndChecksum)
    ->Name("SetRead/reference_read_and_crc32")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ReadSetTable)->Name("SetRead/ReadSetTable_t_Glo_FNs")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
