// The two searches that give words bucketed by letter: by letter with filters, and by text.
// Both walk the alphabetical order, so each bucket lists its words alphabetically.
#include <lumora/lexicon/class_match.h>
#include <lumora/lexicon/glossary.h>
#include <lumora/lexicon/glossary_search_index.h>
#include <lumora/lexicon/plain_folding.h>

#include <algorithm>

namespace lumora {
namespace {

bool HasMatchingClass(const GloFNRecord& fn, uint32_t classId) {
  return std::any_of(fn.classIds.begin(), fn.classIds.end(),
                     [classId](uint32_t candidate) { return classMatches(candidate, classId); });
}

struct LetterFilter {
  uint32_t classId;
  uint32_t needCode;
  uint8_t minLevel;
  uint8_t maxLevel;
  uint16_t letterId;

  bool Keeps(const GloFNRecord& fn) const {
    if (minLevel != 0 && (fn.level < minLevel || fn.level > std::max(minLevel, maxLevel))) {
      return false;
    }
    if (letterId != 0 && fn.letterId != letterId) return false;
    if (needCode != 0 && !HasSearchCode(fn)) return false;
    return classId == 0 || HasMatchingClass(fn, classId);
  }
};

// Files every entry with a letter that `keep` accepts in the bucket of its letter, each bucket
// in alphabetical order. A letter number beyond the letter records has no bucket. The words are
// tested in their own order, which reads the tables front to back, and only then placed by the
// alphabetical order: walking that order to test them would jump around memory at every word.
template <typename Keep>
void FillBuckets(const CGloV6& glossary, WordBuckets& buckets, Keep keep) {
  buckets.resize(glossary.letters.size());
  // The letter of each word kept, by word number up to the largest; 0 for the others.
  uint16_t largest = 0;
  for (const GloFNRecord& fn : glossary.fns) largest = std::max(largest, fn.fnId);
  std::vector<uint16_t> letter_of(size_t{largest} + 1, 0);
  for (const GloFNRecord& fn : glossary.fns) {
    if (fn.kind != GloFNRecord::kEntryKind || fn.letterId == 0) continue;
    if (fn.letterId <= buckets.size() && keep(fn)) letter_of[fn.fnId] = fn.letterId;
  }
  for (const GloFNSortedRecord& entry : glossary.sorted) {
    const uint16_t letter = entry.fnId <= largest ? letter_of[entry.fnId] : 0;
    if (letter != 0) buckets[letter - 1].push_back(entry.fnId);
  }
}

// Whether `plain_query` occurs in `text` once `text` is folded (at its start only when
// `prefix_only`); the text is folded unit by unit as it is compared, never copied.
bool HoldsPlain(const PlainFolding& fold, std::u16string_view text, std::u16string_view plain_query,
                bool prefix_only) {
  if (plain_query.size() > text.size()) return false;
  const size_t last_start = prefix_only ? 0 : text.size() - plain_query.size();
  for (size_t start = 0; start <= last_start; ++start) {
    size_t k = 0;
    while (k < plain_query.size() && fold(text[start + k]) == plain_query[k]) ++k;
    if (k == plain_query.size()) return true;
  }
  return false;
}

}  // namespace

bool CGloV6::getWordsByLetter(WordBuckets& buckets, uint32_t classId, uint32_t needCode,
                              uint8_t minLevel, uint8_t maxLevel, uint16_t letterId) const {
  buckets.clear();
  if (sorted.empty() || fns.empty() || letters.empty()) return false;
  const LetterFilter filter{classId, needCode, minLevel, maxLevel, letterId};
  FillBuckets(*this, buckets, [&filter](const GloFNRecord& fn) { return filter.Keeps(fn); });
  return true;
}

bool CGloV6::getLinkedWordsByLetter(WordBuckets& buckets, uint32_t firstId, uint32_t secondId,
                                    uint32_t classId, uint32_t needCode, uint8_t minLevel,
                                    uint8_t maxLevel, uint16_t letterId) const {
  buckets.clear();
  if (sorted.empty() || fns.empty() || letters.empty()) return false;
  std::vector<GloLinkRecord> first_links;
  if (!getLinks(firstId, first_links) || first_links.empty()) return false;
  const std::vector<uint16_t> linked = LinkedWords(firstId, secondId);
  const LetterFilter filter{classId, needCode, minLevel, maxLevel, letterId};
  FillBuckets(*this, buckets, [&](const GloFNRecord& fn) {
    return std::binary_search(linked.begin(), linked.end(), fn.fnId) && filter.Keeps(fn);
  });
  return true;
}

bool CGloV6::findWords(WordBuckets& buckets, uint32_t, const std::u16string& query, uint32_t,
                       uint32_t needCode, bool prefixOnly) const {
  buckets.clear();
  if (query.empty() || sorted.empty() || fns.empty() || writings.empty() || letters.empty()) {
    return false;
  }
  static const PlainFolding fold;
  const std::u16string plain_query = fold.Fold(query);
  FillBuckets(*this, buckets, [&](const GloFNRecord& fn) {
    const GloWritingRecord* writing = writings.Find(fn.writingId);
    if (writing == nullptr || (needCode != 0 && !HasSearchCode(fn))) return false;
    return HoldsPlain(fold, writing->writing, plain_query, prefixOnly);
  });
  return true;
}

}  // namespace lumora
