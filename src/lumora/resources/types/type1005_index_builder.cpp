#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/index_inputs.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/support/paths.h>

#include <utility>

namespace lumora {

// What the index keeps of an element. Flag A: it has a medium of its own (it is not a
// reference and its medium names a resource). Flag B: it has translations. Values: its first
// attribute list. Items of other types that refer to the element are judged by these without
// opening its file.
ElementIndexInput ElementIndexInputOf(const ContentElement& element, uint32_t number) {
  auto entry = std::make_unique<Type1005Entry>();
  entry->flagA = !element.isReference && element.media.resource != 0;
  entry->flagB = element.translations.size() > 0;
  entry->values = element.firstAttributes;
  return {number, std::move(entry)};
}

bool BuildType1005IndexFrom(std::vector<ElementIndexInput> inputs,
                            const std::string& index_folder) {
  bool result = true;
  Type1005Index index;
  for (ElementIndexInput& input : inputs) {
    if (input.entry == nullptr) {
      result = false;
      continue;
    }
    index.table.Add(input.number, std::move(input.entry));
  }
  if (!LoadArchiveFile(IndexFilePath(index_folder, kContentElementType), true, index)) {
    result = false;
  }
  return result;
}

bool BuildType1005Index(const std::string& resource_root, const std::string& index_folder) {
  std::vector<ElementIndexInput> inputs;
  for (const ScannedResource& file : ScanResourceFiles(resource_root, kContentElementType)) {
    ContentElement element;
    if (LoadArchiveFile(file.path, false, element)) {
      inputs.push_back(ElementIndexInputOf(element, file.number));
    } else {
      inputs.push_back({file.number, nullptr});
    }
  }
  return BuildType1005IndexFrom(std::move(inputs), index_folder);
}

}  // namespace lumora
