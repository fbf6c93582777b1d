// The searches over links and subpoints: the link lookups, and the level and category searches
// that a pair of link sources can narrow down to the subpoints they lead to.
#include <lumora/lexicon/grammar.h>

#include <algorithm>
#include <iterator>
#include <set>

namespace lumora {
namespace {

uint32_t CategoryOf(uint32_t code) { return code - code % 1000000; }
uint32_t SubcategoryOf(uint32_t code) { return code - code % 10000; }
bool IsFirstSubpoint(const GrSubpointsRecord& s) { return s.subpointId % 1000 == 1; }
uint16_t PointOf(const GrSubpointsRecord& s) { return static_cast<uint16_t>(s.subpointId / 1000); }

template <typename Value>
void Assign(std::vector<Value>& out, const std::set<Value>& values) {
  out.assign(values.begin(), values.end());
}

}  // namespace

bool CGramV6::getLinks(uint32_t fromId, std::vector<GrLinksRecord>& found) const {
  found.clear();
  const SetTable<GrLinksRecord>::Key first{fromId, 0, 0};
  for (auto it = links.Range(first, first).first; it != links.end() && it->fromId == fromId; ++it) {
    found.push_back(*it);
  }
  return !found.empty();
}

bool CGramV6::getLinkedSubpoints(uint32_t fromId, std::vector<uint32_t>& found) const {
  std::vector<GrLinksRecord> from;
  getLinks(fromId, from);
  std::set<uint32_t> reached;
  for (const GrLinksRecord& link : from) {
    if (subpoints.Find(link.attrA / 100) != nullptr) reached.insert(link.attrA / 100);
  }
  Assign(found, reached);
  return !found.empty();
}

std::vector<const GrSubpointsRecord*> CGramV6::ConsideredSubpoints(uint32_t firstId,
                                                                   uint32_t secondId) const {
  std::vector<const GrSubpointsRecord*> considered;
  if (firstId == 0 && secondId == 0) {
    for (const GrSubpointsRecord& s : subpoints) considered.push_back(&s);
    return considered;
  }
  std::vector<uint32_t> first;
  std::vector<uint32_t> second;
  getLinkedSubpoints(firstId, first);
  getLinkedSubpoints(secondId, second);
  std::vector<uint32_t> both;
  std::set_union(first.begin(), first.end(), second.begin(), second.end(),
                 std::back_inserter(both));
  for (uint32_t id : both) considered.push_back(subpoints.Find(id));
  return considered;
}

bool CGramV6::getSubpointLevels(std::vector<uint8_t>& levels, uint32_t firstId,
                                uint32_t secondId) const {
  levels.clear();
  if (subpoints.empty()) return false;
  std::set<uint8_t> found;
  for (const GrSubpointsRecord* s : ConsideredSubpoints(firstId, secondId)) {
    if (IsFirstSubpoint(*s) && s->level != 0) found.insert(s->level);
  }
  Assign(levels, found);
  return true;
}

bool CGramV6::getCategories(std::vector<uint32_t>& categories, uint32_t firstId,
                            uint32_t secondId) const {
  categories.clear();
  if (subpoints.empty()) return false;
  std::set<uint32_t> found;
  for (const GrSubpointsRecord* s : ConsideredSubpoints(firstId, secondId)) {
    if (s->categoryCode != 0) found.insert(CategoryOf(s->categoryCode));
  }
  Assign(categories, found);
  return true;
}

bool CGramV6::getSubcategories(uint32_t category, std::vector<uint32_t>& subcategories,
                               uint32_t firstId, uint32_t secondId) const {
  std::set<uint32_t> found;
  for (const GrSubpointsRecord* s : ConsideredSubpoints(firstId, secondId)) {
    if (CategoryOf(s->categoryCode) == category) found.insert(SubcategoryOf(s->categoryCode));
  }
  Assign(subcategories, found);
  return true;
}

bool CGramV6::getPointsByLevel(std::vector<uint16_t>& pointIds, uint8_t minLevel, uint8_t maxLevel,
                               uint32_t firstId, uint32_t secondId) const {
  const uint8_t top = std::max(minLevel, maxLevel);
  std::set<uint16_t> found;
  for (const GrSubpointsRecord* s : ConsideredSubpoints(firstId, secondId)) {
    if (!IsFirstSubpoint(*s)) continue;
    if (minLevel == 0 || (s->level >= minLevel && s->level <= top)) found.insert(PointOf(*s));
  }
  Assign(pointIds, found);
  return true;
}

bool CGramV6::getPointsOfSubcategory(uint32_t subcategory, std::vector<uint16_t>& pointIds,
                                     uint32_t firstId, uint32_t secondId) const {
  std::set<uint16_t> found;
  for (const GrSubpointsRecord* s : ConsideredSubpoints(firstId, secondId)) {
    if (s->subpointId != 0 && SubcategoryOf(s->categoryCode) == subcategory) {
      found.insert(PointOf(*s));
    }
  }
  Assign(pointIds, found);
  return true;
}

}  // namespace lumora
