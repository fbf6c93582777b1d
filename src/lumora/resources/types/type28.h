// The resource class of type 28: sentences, each a sound with its texts.
//
// Stored form after the head and the type tag: u8 group key, then the sentences as an object
// list:
//   sentence:  texts (text list), media (MediaRef)
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type28Sentence : public Object {
 public:
  const char* ClassName() const override { return "Type28Sentence"; }
  void Serialize(Archive& ar) override;

  TextList texts;
  MediaRef media;
};

class Type28Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 28;

  const char* ClassName() const override { return "Type28Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  // The resource's value in the type's usage table: 1 when it has a sentence, else 0.
  uint8_t UsageValue() const { return sentences.empty() ? 0 : 1; }

  uint8_t groupKey = 0;
  ObjectList<Type28Sentence> sentences;
};

}  // namespace lumora

#pragma GCC visibility pop
