// The resource class of type 20, PatchWork: pieces, each a medium with its text. The leading
// value is the authoring tool's; the library keeps it unchanged.
//
// Stored form after the head and the type tag: u32 value, u8 group key, then the pieces as an
// object list:
//   piece:  media (MediaRef), text (MarkedText)
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class PatchWorkPiece : public Object {
 public:
  const char* ClassName() const override { return "PatchWorkPiece"; }
  void Serialize(Archive& ar) override;

  MediaRef media;
  MarkedText text;
};

class Type20Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 20;

  const char* ClassName() const override { return "Type20Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint32_t value = 0;
  uint8_t groupKey = 0;
  ObjectList<PatchWorkPiece> pieces;
};

}  // namespace lumora

#pragma GCC visibility pop
