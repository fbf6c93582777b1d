// Rebuilding the alphabetical order and letters of the largest glossary a word number allows
// (65,534 headwords), against the least any locale-aware sort of the same written forms must
// do: take each one's ICU sort key once and sort by the keys.
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_rebuild.h>

#include <benchmark/benchmark.h>
#include <unicode/ucol.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr uint32_t kWords = 65534;
constexpr uint8_t kFrench = 17;

// French-looking words: two to four syllables, some accented, some behind an article or a
// parenthesised pronoun, some capitalised.
std::u16string MadeUpWord(uint32_t n) {
  static constexpr std::array<std::u16string_view, 16> kSyllables = {
      u"ba",  u"ché", u"lu", u"ro",  u"mé", u"ti",  u"sa", u"gon",
      u"dre", u"vil", u"pâ", u"cou", u"è",  u"nor", u"fi", u"que"};
  static constexpr std::array<std::u16string_view, 5> kLeads = {u"", u"le ", u"la ", u"l'",
                                                                u"(se) "};
  uint32_t state = n * 2654435761u + 12345u;
  auto next = [&state] {
    state = state * 1103515245u + 12345u;
    return state >> 16;
  };
  std::u16string word(kLeads[next() % kLeads.size()]);
  const uint32_t syllables = 2 + next() % 3;
  for (uint32_t s = 0; s < syllables; ++s) word += kSyllables[next() % kSyllables.size()];
  if (next() % 7 == 0) word[word.size() - 1] = u'S';
  return word;
}

const lumora::CGloV6& Glossary() {
  static const lumora::CGloV6 glossary = [] {
    lumora::CGloV6 g;
    g.language = kFrench;
    for (uint32_t i = 1; i <= kWords; ++i) {
      lumora::GloFNRecord fn;
      fn.fnId = static_cast<uint16_t>(i);
      fn.writingId = static_cast<uint16_t>(i);
      fn.kind = 1;
      g.fns.Insert(fn);
      g.writings.Insert({fn.writingId, MadeUpWord(i)});
    }
    return g;
  }();
  return glossary;
}

struct CollatorCloser {
  void operator()(UCollator* collator) const { ucol_close(collator); }
};

std::string SortKey(const UCollator* collator, const std::u16string& word) {
  std::string key(word.size() * 4 + 16, '\0');
  auto fill = [&] {
    return ucol_getSortKey(collator, word.data(), static_cast<int32_t>(word.size()),
                           reinterpret_cast<uint8_t*>(key.data()),
                           static_cast<int32_t>(key.size()));
  };
  const int32_t needed = fill();
  if (needed > static_cast<int32_t>(key.size())) {
    key.resize(needed);
    fill();
  }
  key.resize(needed);
  return key;
}

void ReferenceSortByIcuKeys(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  std::unique_ptr<UCollator, CollatorCloser> collator(ucol_open("fr", &status));
  if (U_FAILURE(status)) return state.SkipWithError("no collator");
  ucol_setStrength(collator.get(), UCOL_SECONDARY);
  std::vector<std::u16string> words;
  for (const lumora::GloWritingRecord& w : Glossary().writings) words.push_back(w.writing.str());
  for (auto _ : state) {
    std::vector<std::pair<std::string, uint32_t>> keyed(words.size());
    for (uint32_t i = 0; i < words.size(); ++i) {
      keyed[i] = {SortKey(collator.get(), words[i]), i};
    }
    std::sort(keyed.begin(), keyed.end());
    benchmark::DoNotOptimize(keyed.data());
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * words.size()));
}

void RebuildSortAndLetters(benchmark::State& state) {
  lumora::CGloV6 g;
  g.language = Glossary().language;
  g.fns = Glossary().fns;
  g.writings = Glossary().writings;
  for (auto _ : state) {
    if (!lumora::rebuildSortAndLetters(g)) return state.SkipWithError("rebuild refused");
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * kWords));
  state.counters["letters"] = static_cast<double>(g.letters.size());
}

BENCHMARK(ReferenceSortByIcuKeys)
    ->Name("Resort/reference_icu_sort_keys")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(RebuildSortAndLetters)
    ->Name("Resort/rebuildSortAndLetters")
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
