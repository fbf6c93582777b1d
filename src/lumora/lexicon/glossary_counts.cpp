// The levels and class numbers that occur among the entries, for the host's search filters.
#include <lumora/lexicon/glossary.h>

#include <algorithm>
#include <set>

namespace lumora {
namespace {

constexpr uint8_t kClassifiedAttr = 2;

// Calls visit(fn) for every entry the search considers: all of them when both ids are 0,
// otherwise those among `linked`.
template <typename Visit>
void ForEachEntry(const SetTable<GloFNRecord>& fns, bool restricted,
                  const std::vector<uint16_t>& linked, Visit visit) {
  for (const GloFNRecord& fn : fns) {
    if (fn.kind != GloFNRecord::kEntryKind) continue;
    if (restricted && !std::binary_search(linked.begin(), linked.end(), fn.fnId)) continue;
    visit(fn);
  }
}

}  // namespace

bool CGloV6::getLevels(std::vector<uint8_t>& levels, uint32_t firstId, uint32_t secondId) const {
  levels.clear();
  if (fns.empty()) return false;
  std::set<uint8_t> found;
  ForEachEntry(fns, firstId != 0 || secondId != 0, LinkedWords(firstId, secondId),
               [&found](const GloFNRecord& fn) {
                 if (fn.level != 0) found.insert(fn.level);
               });
  levels.assign(found.begin(), found.end());
  return true;
}

bool CGloV6::getClassIds(std::vector<uint32_t>& classIds, uint32_t firstId,
                         uint32_t secondId) const {
  classIds.clear();
  if (fns.empty()) return false;
  std::set<uint32_t> found;
  ForEachEntry(fns, firstId != 0 || secondId != 0, LinkedWords(firstId, secondId),
               [&found](const GloFNRecord& fn) {
                 if (fn.attrC == kClassifiedAttr)
                   found.insert(fn.classIds.begin(), fn.classIds.end());
               });
  classIds.assign(found.begin(), found.end());
  return true;
}

}  // namespace lumora
