// What the rebuilds of the type-1005 and type-40 index files keep of each resource file, so
// that a caller that decodes every resource file anyway (the check, as it reads them) rebuilds
// those indexes without decoding the files a second time. Each rebuild takes one input per file
// of a scan of its type (ScanResourceFiles without twins), in scan order, and writes what
// BuildType1005Index and BuildType40IndexOverElements write over the same files.
#pragma once

#include <lumora/resources/types/type1005_index.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lumora {

class ContentElement;
class Type40Resource;

struct ElementIndexInput {
  uint32_t number = 0;
  std::unique_ptr<Type1005Entry> entry;  // null: the file does not load
};
ElementIndexInput ElementIndexInputOf(const ContentElement& element, uint32_t number);
bool BuildType1005IndexFrom(std::vector<ElementIndexInput> inputs, const std::string& index_folder);

struct Type40IndexInput {
  uint32_t number = 0;
  bool loaded = false;
  uint8_t groupKey = 0;
  // The numbers of the elements the parts refer to: items in order, first parts before second
  // parts, elements in order.
  std::vector<uint32_t> elements;
  bool everyItemHasSecondParts = true;
  size_t items = 0;
};
Type40IndexInput Type40IndexInputOf(const Type40Resource& resource, uint32_t number);
// The input of a file that does not load.
Type40IndexInput UnloadedType40IndexInput(uint32_t number);
// Over the type-1005 index file already in index_folder; false without writing anything when
// it cannot be read.
bool BuildType40IndexFrom(const std::vector<Type40IndexInput>& inputs,
                          const std::string& index_folder);

}  // namespace lumora
