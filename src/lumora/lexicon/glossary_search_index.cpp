#include <lumora/lexicon/glossary_search_index.h>
#include <lumora/lexicon/plain_folding.h>

#include <algorithm>
#include <iterator>

namespace lumora {
namespace {

const PlainFolding& Fold() {
  static const PlainFolding fold;
  return fold;
}

template <typename Table>
std::pair<const void*, uint32_t> TableOf(const Table& table) {
  return {table.records().data(), table.size()};
}

}  // namespace

bool HasSearchCode(const GloFNRecord& fn) {
  return std::any_of(fn.codes.begin(), fn.codes.end(),
                     [](uint32_t code) { return code >= 50000 && code < 60000; });
}

GlossarySearchIndex::Tables GlossarySearchIndex::TablesOf(const CGloV6& glossary) {
  return {TableOf(glossary.fns), TableOf(glossary.writings), TableOf(glossary.sorted),
          TableOf(glossary.letters)};
}

GlossarySearchIndex::GlossarySearchIndex(const CGloV6& glossary)
    : tables_(TablesOf(glossary)), bucketCount_(glossary.letters.size()) {
  // Every entry, placed as a search answers it; the search then keeps those whose written form
  // matches.
  WordBuckets everything;
  glossary.getWordsByLetter(everything, 0, 0, 0, 0, 0);
  for (size_t bucket = 0; bucket < everything.size(); ++bucket) {
    for (uint16_t fnId : everything[bucket]) {
      const GloFNRecord* fn = glossary.fns.Find(fnId);
      const GloWritingRecord* writing = fn ? glossary.writings.Find(fn->writingId) : nullptr;
      if (writing == nullptr) continue;
      const std::u16string folded = Fold().Fold(writing->writing.view());
      entries_.push_back({static_cast<uint32_t>(texts_.size()),
                          static_cast<uint32_t>(folded.size()), fnId, static_cast<uint16_t>(bucket),
                          HasSearchCode(*fn)});
      texts_ += folded;
    }
  }
  byText_.resize(entries_.size());
  for (uint32_t i = 0; i < byText_.size(); ++i) byText_[i] = i;
  std::stable_sort(byText_.begin(), byText_.end(), [this](uint32_t a, uint32_t b) {
    return TextOf(entries_[a]) < TextOf(entries_[b]);
  });
}

bool GlossarySearchIndex::MadeFrom(const CGloV6& glossary) const {
  return tables_ == TablesOf(glossary);
}

WordBuckets GlossarySearchIndex::Find(std::u16string_view query, bool needCode, bool prefixOnly,
                                      std::optional<uint32_t> limit) const {
  if (query.empty()) return {};
  const std::u16string plain_query = Fold().Fold(query);
  WordBuckets buckets(bucketCount_);
  for (uint32_t position : prefixOnly ? PrefixMatches(plain_query, needCode, limit)
                                      : Matches(plain_query, needCode, limit)) {
    buckets[entries_[position].bucket].push_back(entries_[position].fnId);
  }
  return buckets;
}

std::vector<uint32_t> GlossarySearchIndex::PrefixMatches(std::u16string_view plain_query,
                                                         bool needCode,
                                                         std::optional<uint32_t> limit) const {
  // The forms starting with the query follow one another in byText_, from the first form not
  // below the query: two binary searches find them all.
  const auto first = std::lower_bound(
      byText_.begin(), byText_.end(), plain_query,
      [this](uint32_t position, std::u16string_view q) { return TextOf(entries_[position]) < q; });
  const auto last = std::partition_point(first, byText_.end(), [&](uint32_t position) {
    return TextOf(entries_[position]).substr(0, plain_query.size()) == plain_query;
  });
  std::vector<uint32_t> found;
  if (needCode) {
    std::copy_if(first, last, std::back_inserter(found),
                 [this](uint32_t position) { return entries_[position].hasCode; });
  } else {
    found.assign(first, last);
  }
  if (limit && found.size() > *limit) {
    std::nth_element(found.begin(), found.begin() + *limit, found.end());
    found.resize(*limit);
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<uint32_t> GlossarySearchIndex::Matches(std::u16string_view plain_query, bool needCode,
                                                   std::optional<uint32_t> limit) const {
  std::vector<uint32_t> found;
  for (uint32_t position = 0; position < entries_.size(); ++position) {
    if (limit && found.size() >= *limit) break;
    const Entry& entry = entries_[position];
    if (needCode && !entry.hasCode) continue;
    if (TextOf(entry).find(plain_query) != std::u16string_view::npos) found.push_back(position);
  }
  return found;
}

}  // namespace lumora
