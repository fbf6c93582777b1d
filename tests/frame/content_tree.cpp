#include "frame/content_tree.h"

#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/support/paths.h>

#include <memory>
#include <stdexcept>

namespace lumora::testing {

void WriteDescriptions(const std::string& data_folder, std::initializer_list<uint8_t> attributes) {
  Type2000Index index;
  uint32_t key = 10;
  for (uint8_t attribute : attributes) {
    auto entry = std::make_unique<Type2000Entry>();
    entry->attribute = attribute;
    index.table.Add(key++, std::move(entry));
  }
  if (!CreateFolderPath(data_folder) ||
      !LoadArchiveFile(IndexFilePath(data_folder, 2000), true, index)) {
    throw std::runtime_error("cannot write the description index in " + data_folder);
  }
}

std::vector<uint32_t> RegisteredIds() {
  const DWordArray& keys = Library().registry.keys();
  return std::vector<uint32_t>(keys.begin(), keys.begin() + Library().registry.size());
}

}  // namespace lumora::testing
