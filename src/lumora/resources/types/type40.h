// The resource class of type 40: a group key and a list of items, each built from content
// elements. Items and parts carry their own content element; parts also hold a list of
// elements, usually references to stored type-1005 resources.
//
// Stored form after the head and the type tag: u8 group key, then the items as an object list.
//   item:  content (ContentElement), first parts, second parts (object lists of ItemPart),
//          media (object list of MediaRef), records (RecordArray16)
//   part:  u16 value, u8 flag (1 or 0), elements (object list of ContentElement), content
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>
#include <lumora/resources/types/type1005.h>

#include <cstdint>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class ItemPart : public Object {
 public:
  const char* ClassName() const override { return "ItemPart"; }
  // Storing marks every element with ResourceId 1 first: elements of a part belong to no
  // resource of their own.
  void Serialize(Archive& ar) override;

  uint16_t value = 0;
  bool flag = false;
  ObjectList<ContentElement> elements;
  ContentElement content;
};

class ExerciseItem : public Object {
 public:
  const char* ClassName() const override { return "ExerciseItem"; }
  void Serialize(Archive& ar) override;

  // The first parts, then the second parts, in order: the order every pass over parts takes.
  std::vector<ItemPart*> Parts() const;

  ContentElement content;
  ObjectList<ItemPart> firstParts;
  ObjectList<ItemPart> secondParts;
  ObjectList<MediaRef> media;
  RecordArray16 records;
};

class Type40Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 40;

  const char* ClassName() const override { return "Type40Resource"; }
  // Storing first copies the resource's own id into the content of every item and part.
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint8_t groupKey = 0;
  ObjectList<ExerciseItem> items;
};

}  // namespace lumora

#pragma GCC visibility pop
