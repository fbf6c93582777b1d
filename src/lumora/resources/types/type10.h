// The resource class of type 10, Phonetics: an instruction and the words to pronounce, each
// with its medium (usually a Flash video). Link records in the head name other resources whose
// files the verification checks.
//
// Stored form after the head and the type tag: u8 group key, instruction (MarkedText), then
// the words as an object list of TextWithMedia (MarkedText, MediaRef).
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>
#include <lumora/resources/types/text_with_media.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type10Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 10;

  const char* ClassName() const override { return "Type10Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint8_t groupKey = 0;
  MarkedText instruction;
  ObjectList<TextWithMedia> words;
};

}  // namespace lumora

#pragma GCC visibility pop
