#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type40.h>
#include <lumora/support/paths.h>

#include <unordered_map>

namespace lumora {
namespace {

using Type40Index = UsageIndex<uint32_t, UsageFlag::kTopByte>;

// Finds entries of the type-1005 index as its table would. A rebuilt table is unsorted, so the
// table scans for the first entry added with the key; with thousands of elements and several
// references per resource, a map of first entries gives the same answers without the scans.
class ElementFlags {
 public:
  explicit ElementFlags(const Type1005Index& index) : table_(index.table) {
    if (table_.sorted()) return;
    first_.reserve(table_.size());
    for (uint32_t i = 0; i < table_.size(); ++i)
      first_.emplace(table_.KeyAt(i), table_.ObjectAt(i));
  }

  const Type1005Entry* Find(uint32_t number) const {
    if (table_.sorted()) return table_.Find(number);
    const auto it = first_.find(number);
    return it == first_.end() ? nullptr : it->second;
  }

 private:
  const KeyedTable<Type1005Entry>& table_;
  std::unordered_map<uint32_t, const Type1005Entry*> first_;
};

// Flags A and B of the elements the parts refer to, examined part by part, first parts before
// second parts: every entry found overwrites both, and once both are 0 nothing can change them
// back. A reference missing from the index clears `result`; lookups are made only while
// `result` holds, so after a failure every later resource keeps both flags at 1.
void ReadElementFlags(const Type40Resource& resource, const ElementFlags& elements, bool& result,
                      uint8_t& a, uint8_t& b) {
  a = b = 1;
  for (auto& item : resource.items) {
    for (ItemPart* part : item->Parts()) {
      for (auto& element : part->elements) {
        if (!result || (a == 0 && b == 0)) return;
        const Type1005Entry* entry = elements.Find(NumberOf(element->reference));
        if (entry == nullptr) {
          result = false;
          return;
        }
        a = entry->flagA ? 1 : 0;
        b = entry->flagB ? 1 : 0;
      }
    }
  }
}

// Usage value, least significant byte first: flags A and B, whether every item has a second
// part, and the item count (low 8 bits).
uint32_t UsageValue(const Type40Resource& resource, const ElementFlags& elements, bool& result) {
  uint8_t a, b;
  ReadElementFlags(resource, elements, result, a, b);
  bool all_have_second_parts = true;
  for (auto& item : resource.items) {
    if (item->secondParts.empty()) all_have_second_parts = false;
  }
  return uint32_t{a} | uint32_t{b} << 8 | uint32_t{all_have_second_parts} << 16 |
         (resource.items.size() & 0xFF) << 24;
}

}  // namespace

bool BuildType40Index(const std::string& resource_root, const std::string& index_folder) {
  BuildType1005Index(resource_root, index_folder);
  return BuildType40IndexOverElements(resource_root, index_folder);
}

bool BuildType40IndexOverElements(const std::string& resource_root,
                                  const std::string& index_folder) {
  Type1005Index elements;
  if (!elements.Load(IndexFilePath(index_folder, kContentElementType))) return false;

  const ElementFlags flags(elements);
  bool result = true;
  Type40Index index;
  return BuildIndexFromResources<Type40Resource>(
      resource_root, index_folder, index,
      [&](Type40Index& i, const Type40Resource& resource, uint32_t number) {
        i.groups.FindOrInsert(resource.groupKey).Add(number);
        i.AddUsage(number, UsageValue(resource, flags, result));
      },
      result);
}

}  // namespace lumora
