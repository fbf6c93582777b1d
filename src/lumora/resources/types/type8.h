// The resource class of type 8, Video Questions: questions about a video. The video is a
// type-1003 resource of the same course, named by the link records of the head (kind 3,
// target type 1003); a question's own link records name paragraphs of such a video.
//
// Stored form after the head and the type tag: u8 group key, then the items as an object
// list; an item is its question (MarkedText, whose link records are the item's links)
// followed by two text lists.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// A link of the head to the video: kind 3, and the whole u32 at offset 8 equal to 1003 (a
// link that names a paragraph is an item's link, not the resource's).
bool IsVideoLink(const Record16& record);

class VideoQuestion : public Object {
 public:
  const char* ClassName() const override { return "VideoQuestion"; }
  void Serialize(Archive& ar) override;

  MarkedText question;
  TextList firstTexts;
  TextList secondTexts;
};

class Type8Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 8;

  const char* ClassName() const override { return "Type8Resource"; }
  void Serialize(Archive& ar) override;

  uint32_t GetType() const override { return kType; }
  // Copies, for every video link of the head, the video resource's file, its video (the
  // ".avi" when there is one, else the ".mpg") into Q3 and its picture of every listed
  // quality folder that has one. False without links, or when a folder or a copy fails.
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  // Reports a resource without links, the missing videos and pictures of the linked video
  // resources, and the item links to a video that cannot be read or to a paragraph that is
  // missing or empty.
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  // True when the head holds a link of kind 3 to a type-1003 resource.
  bool HasVideoLink() const;

  uint8_t groupKey = 0;
  ObjectList<VideoQuestion> items;
};

}  // namespace lumora

#pragma GCC visibility pop
