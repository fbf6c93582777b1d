#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type1010_index.h>

#include <algorithm>

namespace lumora {
namespace {

void AddKeyInOrder(ByteArray& keys, uint8_t key) {
  const uint8_t* at = std::lower_bound(keys.begin(), keys.end(), key);
  if (at != keys.end() && *at == key) return;
  const uint32_t index = static_cast<uint32_t>(at - keys.begin());
  keys.Add(key);
  std::copy_backward(keys.data() + index, keys.data() + keys.size() - 1, keys.data() + keys.size());
  keys[index] = key;
}

}  // namespace

bool BuildType1010Index(const std::string& resource_root, const std::string& index_folder) {
  Type1010Index index;
  bool result = true;
  return BuildIndexFromResources<Type1010Resource>(
      resource_root, index_folder, index,
      [](Type1010Index& i, const Type1010Resource& resource, uint32_t number) {
        AddKeyInOrder(i.groupKeys, resource.groupKey);
        i.groups.FindOrInsert(resource.groupKey).Add(number);
        for (size_t t = 0; t < Type1010Index::kTextCount; ++t) {
          if (resource.texts[t].translations.size() > 0) i.translated[t].Add(number);
        }
      },
      result);
}

}  // namespace lumora
