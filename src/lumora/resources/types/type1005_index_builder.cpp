#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/support/paths.h>

#include <memory>

namespace lumora {
namespace {

// What the index keeps of an element. Flag A: it has a medium of its own (it is not a
// reference and its medium names a resource). Flag B: it has translations. Values: its first
// attribute list. Items of other types that refer to the element are judged by these without
// opening its file.
std::unique_ptr<Type1005Entry> EntryOf(const ContentElement& element) {
  auto entry = std::make_unique<Type1005Entry>();
  entry->flagA = !element.isReference && element.media.resource != 0;
  entry->flagB = element.translations.size() > 0;
  entry->values = element.firstAttributes;
  return entry;
}

}  // namespace

bool BuildType1005Index(const std::string& resource_root, const std::string& index_folder) {
  bool result = true;
  Type1005Index index;
  for (const ScannedResource& file : ScanResourceFiles(resource_root, kContentElementType)) {
    ContentElement element;
    if (!LoadArchiveFile(file.path, false, element)) {
      result = false;
      continue;
    }
    index.table.Add(file.number, EntryOf(element));
  }
  if (!LoadArchiveFile(IndexFilePath(index_folder, kContentElementType), true, index)) {
    result = false;
  }
  return result;
}

}  // namespace lumora
