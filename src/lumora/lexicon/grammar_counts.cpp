// The grammar's counting lookups. Each starts at the first record not below a key made of the
// given parts and walks forward while those parts still match. The part left out of that key is
// 0 for parts but 1 for pictures and bubbles, so a picture numbered 0 or a bubble whose attrC is
// 0 is never counted.
#include <lumora/lexicon/grammar.h>

#include <cstdint>
#include <limits>

namespace lumora {
namespace {

struct Tally {
  uint32_t walked = 0;   // records whose given key parts match
  uint32_t counted = 0;  // of those, the ones `counts` accepts
};

template <typename Record, typename Matches, typename Counts = bool (*)(const Record&)>
Tally CountFrom(
    const SetTable<Record>& table, const typename SetTable<Record>::Key& first, Matches matches,
    Counts counts = [](const Record&) { return true; }) {
  Tally tally;
  for (auto it = table.Range(first, first).first; it != table.end() && matches(*it); ++it) {
    ++tally.walked;
    if (counts(*it)) ++tally.counted;
  }
  return tally;
}

}  // namespace

bool CGramV6::countPictures(uint16_t pointId, uint8_t& count) const {
  const uint32_t n = CountFrom(pictures, {pointId, 1}, [pointId](const GrPicturesRecord& r) {
                       return r.pointId == pointId;
                     }).counted;
  count = static_cast<uint8_t>(n);
  return n != 0;
}

bool CGramV6::countParts(uint32_t partId, uint8_t attrB, uint32_t& count) const {
  const Tally tally = CountFrom(
      parts, {partId, 0, 0}, [partId](const GrPartsRecord& r) { return r.partId == partId; },
      [attrB](const GrPartsRecord& r) { return r.attrB == attrB; });
  count = tally.counted;
  return tally.walked != 0;
}

bool CGramV6::countKeywords(uint32_t subpointId, uint32_t& count) const {
  count = 0;
  const uint64_t first = uint64_t{subpointId} * 100;
  if (first > std::numeric_limits<uint32_t>::max()) return false;
  count =
      CountFrom(keywords, static_cast<uint32_t>(first), [subpointId](const GrKeywordsRecord& r) {
        return r.keywordId / 100 == subpointId;
      }).counted;
  return count != 0;
}

bool CGramV6::countBubbles(uint8_t language, uint16_t pointId, uint8_t attrB,
                           uint8_t& count) const {
  const uint32_t n =
      CountFrom(bubbles, {language, pointId, attrB, 1}, [&](const GrBubblesRecord& r) {
        return r.language == language && r.pointId == pointId && r.attrB == attrB;
      }).counted;
  count = static_cast<uint8_t>(n);
  return n != 0;
}

}  // namespace lumora
