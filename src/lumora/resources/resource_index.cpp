#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/folder_commit.h>
#include <lumora/support/folder_entries.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace lumora {
namespace {

// The names in `folder`, sorted; none when it cannot be listed. One listing costs less than
// trying to open the index files of the many types a discipline has no resources of.
std::optional<std::vector<std::string>> FolderNames(const std::string& folder) {
  const auto entries = ListFolder(folder);
  if (!entries) return std::nullopt;
  std::vector<std::string> names;
  names.reserve(entries->size());
  for (const FolderEntry& entry : *entries) names.push_back(entry.name);
  return names;
}

}  // namespace

std::string IndexFilePath(const std::string& dataFolder, uint32_t type) {
  return dataFolder + NumberedName('r', type) + ".ari";
}

ResourceIndex::ResourceIndex(const std::string& dataFolder) {
  // An index rebuild replaces several index files together; this sees all old or all new.
  FolderReadScope scope(dataFolder);
  const std::optional<std::vector<std::string>> names = FolderNames(dataFolder);
  if (names && names->empty()) return;
  for (uint32_t type : kIndexLoadOrder) {
    // A folder that cannot be listed may still let its files be read: then every file is tried.
    if (names &&
        !std::binary_search(names->begin(), names->end(), NumberedName('r', type) + ".ari")) {
      continue;
    }
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
