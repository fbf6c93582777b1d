// The two searches that give words bucketed by letter: by letter with filters, and by text.
// Both walk the alphabetical order, so each bucket lists its words alphabetically.
#include <lumora/lexicon/class_match.h>
#include <lumora/lexicon/glossary.h>
#include <lumora/support/accent_table.h>

#include <algorithm>

namespace lumora {
namespace {

constexpr uint8_t kEntryKind = 1;

bool HasNeededCode(const GloFNRecord& fn) {
  return std::any_of(fn.codes.begin(), fn.codes.end(),
                     [](uint32_t code) { return code >= 50000 && code < 60000; });
}

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
    if (needCode != 0 && !HasNeededCode(fn)) return false;
    return classId == 0 || HasMatchingClass(fn, classId);
  }
};

// Walks the alphabetical order and files every entry with a letter that `keep` accepts in the
// bucket of its letter. A letter number beyond the letter records has no bucket.
template <typename Keep>
void FillBuckets(const CGloV6& glossary, WordBuckets& buckets, Keep keep) {
  buckets.resize(glossary.letters.size());
  for (const GloFNSortedRecord& entry : glossary.sorted) {
    const GloFNRecord* fn = glossary.fns.Find(entry.fnId);
    if (fn == nullptr || fn->kind != kEntryKind || fn->letterId == 0) continue;
    if (fn->letterId > buckets.size() || !keep(*fn)) continue;
    buckets[fn->letterId - 1].push_back(fn->fnId);
  }
}

// `text` in lower case without accents, into `plain` (reused so a search allocates once).
void ToPlain(std::u16string_view text, std::u16string& plain) {
  plain.assign(text);
  for (char16_t& unit : plain) unit = AccentTable::LowerPlain(unit);
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
  std::u16string plain_query;
  ToPlain(query, plain_query);
  std::u16string plain;
  FillBuckets(*this, buckets, [&](const GloFNRecord& fn) {
    const GloWritingRecord* writing = writings.Find(fn.writingId);
    if (writing == nullptr || (needCode != 0 && !HasNeededCode(fn))) return false;
    ToPlain(writing->writing, plain);
    return prefixOnly ? plain.starts_with(plain_query)
                      : plain.find(plain_query) != std::u16string::npos;
  });
  return true;
}

}  // namespace lumora
