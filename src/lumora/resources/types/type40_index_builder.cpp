#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/index_inputs.h>
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

// Flags A and B of the elements the parts refer to, examined in order: every entry found
// overwrites both, and once both are 0 nothing can change them back. A reference missing from
// the index clears `result`; lookups are made only while `result` holds, so after a failure
// every later resource keeps both flags at 1.
void ReadElementFlags(const Type40IndexInput& resource, const ElementFlags& elements, bool& result,
                      uint8_t& a, uint8_t& b) {
  a = b = 1;
  for (uint32_t number : resource.elements) {
    if (!result || (a == 0 && b == 0)) return;
    const Type1005Entry* entry = elements.Find(number);
    if (entry == nullptr) {
      result = false;
      return;
    }
    a = entry->flagA ? 1 : 0;
    b = entry->flagB ? 1 : 0;
  }
}

// Usage value, least significant byte first: flags A and B, whether every item has a second
// part, and the item count (low 8 bits).
uint32_t UsageValue(const Type40IndexInput& resource, const ElementFlags& elements, bool& result) {
  uint8_t a, b;
  ReadElementFlags(resource, elements, result, a, b);
  return uint32_t{a} | uint32_t{b} << 8 | uint32_t{resource.everyItemHasSecondParts} << 16 |
         (resource.items & 0xFF) << 24;
}

}  // namespace

Type40IndexInput Type40IndexInputOf(const Type40Resource& resource, uint32_t number) {
  Type40IndexInput input{number, true, resource.groupKey, {}, true, resource.items.size()};
  for (auto& item : resource.items) {
    if (item->secondParts.empty()) input.everyItemHasSecondParts = false;
    for (ItemPart* part : item->Parts()) {
      for (auto& element : part->elements) input.elements.push_back(NumberOf(element->reference));
    }
  }
  return input;
}

Type40IndexInput UnloadedType40IndexInput(uint32_t number) {
  Type40IndexInput input;
  input.number = number;
  return input;
}

bool BuildType40IndexFrom(const std::vector<Type40IndexInput>& inputs,
                          const std::string& index_folder) {
  Type1005Index elements;
  if (!elements.Load(IndexFilePath(index_folder, kContentElementType))) return false;
  const ElementFlags flags(elements);
  bool result = true;
  Type40Index index;
  for (const Type40IndexInput& input : inputs) {
    if (!input.loaded) {
      result = false;
      continue;
    }
    index.groups.FindOrInsert(input.groupKey).Add(input.number);
    index.AddUsage(input.number, UsageValue(input, flags, result));
  }
  if (!LoadArchiveFile(IndexFilePath(index_folder, Type40Resource::kType), true, index)) {
    result = false;
  }
  return result;
}

bool BuildType40Index(const std::string& resource_root, const std::string& index_folder) {
  BuildType1005Index(resource_root, index_folder);
  return BuildType40IndexOverElements(resource_root, index_folder);
}

bool BuildType40IndexOverElements(const std::string& resource_root,
                                  const std::string& index_folder) {
  std::vector<Type40IndexInput> inputs;
  for (const ScannedResource& file : ScanResourceFiles(resource_root, Type40Resource::kType)) {
    Type40Resource resource;
    if (LoadArchiveFile(file.path, false, resource)) {
      inputs.push_back(Type40IndexInputOf(resource, file.number));
    } else {
      inputs.push_back(UnloadedType40IndexInput(file.number));
    }
  }
  return BuildType40IndexFrom(inputs, index_folder);
}

}  // namespace lumora
