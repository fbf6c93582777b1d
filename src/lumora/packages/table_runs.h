// Walking the run of a set table's records that share a leading key part: from the first
// record not below a key, for as long as the records still belong to the run. Bounds such as
// "the next word" or "the next point" would overflow at the top of their number range; a
// predicate does not.
#pragma once

#include <lumora/lexicon/set_table.h>

#include <algorithm>

namespace lumora {

template <typename Record, typename Belongs, typename Visit>
void ForEachInRun(const SetTable<Record>& table, const typename SetTable<Record>::Key& first,
                  Belongs belongs, Visit visit) {
  const auto& records = table.records();
  auto it = std::lower_bound(records.begin(), records.end(), first,
                             [](const Record& r, const auto& key) { return r.Key() < key; });
  for (; it != records.end() && belongs(*it); ++it) visit(*it);
}

}  // namespace lumora
