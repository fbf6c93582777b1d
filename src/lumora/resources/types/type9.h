// The resource class of type 9, Picture/Word Association: the words to match, a list of
// strings, and the one picture they are matched with.
//
// Stored form after the head and the type tag: u8 group key, words (text list), strings
// (string list), media (MediaRef).
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type9Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 9;

  const char* ClassName() const override { return "Type9Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  // The resource's value in the type's usage table: 1 when it has a word to associate, else 0.
  uint8_t UsageValue() const { return words.empty() ? 0 : 1; }

  uint8_t groupKey = 0;
  TextList words;
  StringArray strings;
  MediaRef media;
};

}  // namespace lumora

#pragma GCC visibility pop
