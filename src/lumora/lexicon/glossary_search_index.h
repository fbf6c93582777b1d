// The text search of a glossary's entries, made once for many searches: the entries that have a
// written form, in the order the search answers them (letter by letter, each letter in the
// alphabetical order), with their forms folded ahead of time, and the same entries ordered by
// their folded forms. A prefix search then looks its words up instead of folding and comparing
// every word of the glossary, and a search with a limit stops at its last word; the words found
// are the ones CGloV6::findWords finds, in the same buckets and order.
#pragma once

#include <lumora/lexicon/glossary.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

// Whether the word has a code in 50000..59999, the codes a search that needs one asks for.
bool HasSearchCode(const GloFNRecord& fn);

class GlossarySearchIndex {
 public:
  explicit GlossarySearchIndex(const CGloV6& glossary);

  // What glossary.findWords(buckets, 0, query, 0, needCode, prefixOnly) gives, cut to its first
  // `limit` words when there is a limit. Empty (no bucket at all) for an empty query.
  WordBuckets Find(std::u16string_view query, bool needCode, bool prefixOnly,
                   std::optional<uint32_t> limit) const;

  // Whether `glossary` holds its tables where it held them, with as many records, when the
  // index was made: a glossary loaded again elsewhere or with other counts is not the one the
  // index knows. Records edited in place are not seen.
  bool MadeFrom(const CGloV6& glossary) const;

 private:
  struct Entry {
    uint32_t textStart = 0;  // the folded form, in texts_
    uint32_t textSize = 0;
    uint16_t fnId = 0;
    uint16_t bucket = 0;  // letter number - 1
    bool hasCode = false;
  };
  using Tables = std::array<std::pair<const void*, uint32_t>, 4>;
  static Tables TablesOf(const CGloV6& glossary);

  std::u16string_view TextOf(const Entry& entry) const {
    return std::u16string_view(texts_).substr(entry.textStart, entry.textSize);
  }
  // The positions in entries_ of the words starting with `plain_query`, ascending.
  std::vector<uint32_t> PrefixMatches(std::u16string_view plain_query, bool needCode,
                                      std::optional<uint32_t> limit) const;
  // The positions of the words holding `plain_query`, ascending, the first `limit` only.
  std::vector<uint32_t> Matches(std::u16string_view plain_query, bool needCode,
                                std::optional<uint32_t> limit) const;

  Tables tables_;
  size_t bucketCount_ = 0;
  std::vector<Entry> entries_;    // in the order of the answers
  std::u16string texts_;          // the folded forms, one after the other
  std::vector<uint32_t> byText_;  // positions in entries_, by folded form, then by position
};

}  // namespace lumora
