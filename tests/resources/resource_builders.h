// Builders of resource objects and resource files for the resource tests.
#pragma once

#include <lumora/resources/resource_files.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>
#include <lumora/support/paths.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "fixtures/archive_bytes.h"

namespace lumora::testing {

// magic, id and an empty RecordArray16.
inline Bytes ResourceHead(uint32_t id) {
  return Concat({U32(0x00535241), U32(id), U32(16), U32(0), U32(0)});
}

inline std::unique_ptr<ContentElement> ReferenceElement(uint32_t reference) {
  auto element = std::make_unique<ContentElement>();
  element->isReference = true;
  element->reference = reference;
  return element;
}

// An element with a text, a medium (none when media_resource is 0) and, when given, one
// translation and one first attribute.
inline std::unique_ptr<ContentElement> FullElement(const std::u16string& text,
                                                   uint32_t media_resource = 0,
                                                   const std::u16string& translation = u"",
                                                   uint8_t attribute = 0) {
  auto element = std::make_unique<ContentElement>();
  element->text = MarkedText(1252, WideText(text));
  if (media_resource != 0) element->media = MediaRef(kMediaPicture, 1005, media_resource);
  if (!translation.empty()) element->translations.Add(9, CodePageText(1252, WideText(translation)));
  if (attribute != 0) element->firstAttributes.Add(attribute);
  return element;
}

// A part whose elements refer to the given type-1005 resources.
inline ItemPart& AddPart(ObjectList<ItemPart>& parts, const std::vector<uint32_t>& references) {
  ItemPart& part = parts.AddNew();
  for (uint32_t reference : references) part.elements.Add(ReferenceElement(reference));
  return part;
}

// An item with one first part and, when second_references is not empty, one second part.
inline ExerciseItem& AddItem(Type40Resource& resource,
                             const std::vector<uint32_t>& first_references,
                             const std::vector<uint32_t>& second_references = {}) {
  ExerciseItem& item = resource.items.AddNew();
  AddPart(item.firstParts, first_references);
  if (!second_references.empty()) AddPart(item.secondParts, second_references);
  return item;
}

// Stores `resource` as the resource file of `id` below `root`, creating its folders.
inline std::string WriteResource(const std::string& root, uint32_t id, ExerciseResource& resource) {
  const std::string path = ResourceFilePath(root, resource.GetType(), id);
  CreateFolderPath(FolderOf(path));
  resource.resourceId = id;
  LoadArchiveFile(path, true, resource);
  return path;
}

}  // namespace lumora::testing
