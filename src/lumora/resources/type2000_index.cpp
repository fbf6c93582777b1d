#include <lumora/platform/archive.h>
#include <lumora/resources/type2000_index.h>

#include <algorithm>

namespace lumora {

void Type2000Entry::Serialize(Archive& ar) {
  ar.Io(attribute);
  titles.Serialize(ar);
  media.Serialize(ar);
}

void Type2000Index::CollectGroupKeys(ByteArray& keys) const {
  keys.RemoveAll();
  for (uint32_t i = 0; i < table.size(); ++i) {
    const Type2000Entry* entry = table.ObjectAt(i);
    if (!entry || std::find(keys.begin(), keys.end(), entry->attribute) != keys.end()) continue;
    keys.Add(entry->attribute);
  }
  std::sort(keys.data(), keys.data() + keys.size());
}

void Type2000Index::CopyEntries(uint8_t filter, KeyedTable<Type2000Entry>& destination) const {
  for (uint32_t i = 0; i < table.size(); ++i) {
    const Type2000Entry* entry = table.ObjectAt(i);
    if (!entry || (filter != 0 && entry->attribute != filter)) continue;
    destination.Add(table.KeyAt(i), std::make_unique<Type2000Entry>(*entry));
  }
}

}  // namespace lumora
