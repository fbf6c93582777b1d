// The description index of a discipline (type 2000): a KeyedTable of entries keyed by number.
#pragma once

#include <lumora/platform/keyed_table.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_entry.h>

#include <cstdint>

namespace lumora {

class Type2000Index : public NumberListIndex<Type2000Entry> {
 public:
  const char* ClassName() const override { return "Type2000Index"; }

  // Empties `keys`, appends each entry's attribute in table order unless already present,
  // then sorts them ascending.
  void CollectGroupKeys(ByteArray& keys) const;
  // Adds a copy of every entry whose attribute equals `filter` (every entry for filter 0) to
  // `destination`, under the entry's own key.
  void CopyEntries(uint8_t filter, KeyedTable<Type2000Entry>& destination) const;
};

}  // namespace lumora
