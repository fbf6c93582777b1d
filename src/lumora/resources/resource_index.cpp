#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>

namespace lumora {

std::string IndexFilePath(const std::string& dataFolder, uint32_t type) {
  return dataFolder + NumberedName('r', type) + ".ari";
}

ResourceIndex::ResourceIndex(const std::string& dataFolder) {
  for (uint32_t type : kIndexLoadOrder) {
    std::unique_ptr<TypeIndex> index = NewTypeIndex(type);
    if (!index || !index->Load(IndexFilePath(dataFolder, type))) continue;
    types_.Add(type);
    indexes_.push_back(std::move(index));
  }
}

TypeIndex* ResourceIndex::FindType(uint32_t type) const {
  for (uint32_t i = 0; i < types_.size(); ++i) {
    if (types_[i] == type) return indexes_[i].get();
  }
  return nullptr;
}

}  // namespace lumora
