// The glossary at the largest size its 16-bit word numbers allow (65,534 words, each with a
// written form, a place in the alphabetical order, a translation and a sound, with comments
// and links for some):
//   - `load` against reading the same set files and computing their CRC-32 (target: at most
//     twice the reference's time), with the heap the loaded glossary holds, and the most heap
//     the load holds at once, against the files' size (target: at most three times);
//   - one `findWords` query against `grep -F -c` over a file of the same written forms already
//     reduced to plain lower case, one per line (target: at most twice the reference's time).
#include <lumora/lexicon/glossary.h>
#include <lumora/support/accent_table.h>
#include <lumora/support/crc32.h>
#include <lumora/support/utf8.h>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <stdlib.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "heap_peak.h"

namespace {

constexpr uint32_t kWords = 65534;
constexpr const char* kQueries[] = {"tra", "ele", "zu", "ane"};

// A pronounceable written form for word `n`, with accented vowels here and there.
std::u16string WrittenForm(uint32_t n) {
  static const std::u16string_view kSyllables[] = {u"ba", u"tra", u"é",  u"lo", u"mi", u"zu",
                                                   u"ne", u"ça",  u"ri", u"po", u"sè", u"ka",
                                                   u"dô", u"fu",  u"gi", u"va"};
  std::u16string form;
  for (uint32_t rest = n + 17; rest != 0; rest /= 16) form += kSyllables[rest % 16];
  return form + u"le";
}

std::u16string Plain(std::u16string text) {
  for (char16_t& unit : text) unit = lumora::AccentTable::LowerPlain(unit);
  return text;
}

class BenchGlossary {
 public:
  BenchGlossary() {
    char pattern[] = "/tmp/lumora-glossary-bench-XXXXXX";
    if (mkdtemp(pattern) == nullptr) return;
    folder_ = std::string(pattern) + "/";
    lumora::CGloV6 glossary;
    Fill(glossary);
    glossary.setFolder(folder_);
    if (!glossary.save(false, {}) || !WritePlainForms(glossary)) {
      std::fprintf(stderr, "could not write the glossary in %s\n", folder_.c_str());
      return;
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      if (entry.path().extension() == ".set") setFiles_.push_back(entry.path().string());
    }
    for (const std::string& file : setFiles_) setBytes_ += std::filesystem::file_size(file);
    ready_ = true;
  }
  ~BenchGlossary() {
    std::error_code ignored;
    if (!folder_.empty()) std::filesystem::remove_all(folder_, ignored);
  }

  bool ready() const { return ready_; }
  const std::string& folder() const { return folder_; }
  const std::vector<std::string>& setFiles() const { return setFiles_; }
  uint64_t setBytes() const { return setBytes_; }
  std::string plainForms() const { return folder_ + "plain.txt"; }

 private:
  static void Fill(lumora::CGloV6& glossary) {
    std::vector<std::pair<std::u16string, uint16_t>> order;
    for (uint32_t n = 1; n <= kWords; ++n) {
      const auto fnId = static_cast<uint16_t>(n);
      const std::u16string form = WrittenForm(n);
      const auto letterId = static_cast<uint16_t>(Plain(form)[0] - u'a' + 1);
      glossary.fns.Insert({fnId,
                           fnId,
                           0,
                           1,
                           {50000 + n % 20000},
                           {1010000 + n % 7 * 100},
                           static_cast<uint8_t>(n % 5),
                           2,
                           letterId});
      glossary.writings.Insert({fnId, form});
      glossary.translations.Insert({14, fnId, u"meaning " + form});
      if (n % 4 == 0) glossary.comments.Insert({fnId, 1, u"note"});
      if (n % 10 == 0) glossary.links.Insert({n, n + 1, 1, 0, static_cast<uint16_t>(n + 1), 0});
      lumora::GloSoundRecord sound;
      sound.fnId = fnId;
      sound.status = lumora::GloSoundRecord::kPresentStatus;
      sound.text1 = form;
      glossary.sounds.Insert(std::move(sound));
      order.emplace_back(Plain(form), fnId);
    }
    std::sort(order.begin(), order.end());
    uint16_t position = 0;
    for (const auto& [form, fnId] : order) glossary.sorted.Insert({position++, fnId});
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
      glossary.letters.Insert(
          {std::u16string(1, letter), static_cast<uint16_t>(letter - 'A' + 1), 0, 0});
    }
  }

  bool WritePlainForms(const lumora::CGloV6& glossary) const {
    std::ofstream out(plainForms());
    for (const lumora::GloFNSortedRecord& entry : glossary.sorted) {
      out << lumora::Utf16ToUtf8(Plain(glossary.getWritingText(entry.fnId))) << '\n';
    }
    return static_cast<bool>(out);
  }

  std::string folder_;
  std::vector<std::string> setFiles_;
  uint64_t setBytes_ = 0;
  bool ready_ = false;
};

const BenchGlossary& Glossary() {
  static const BenchGlossary glossary;
  return glossary;
}

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
