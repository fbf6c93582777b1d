// The resource class of type 5, Dictation: a title and the sentences to write down, each with
// its texts and the sound that dictates it.
//
// Stored form after the head and the type tag: u8 group key, title (CodePageText), then the
// sentences as an object list:
//   sentence:  u32 value, texts (text list), media (MediaRef)
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class DictationSentence : public Object {
 public:
  const char* ClassName() const override { return "DictationSentence"; }
  void Serialize(Archive& ar) override;

  uint32_t value = 0;  // the authoring tool's; kept unchanged
  TextList texts;
  MediaRef media;
};

class Type5Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 5;

  const char* ClassName() const override { return "Type5Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  // The resource's value in the type's usage table: 0x0100 when it has a sentence, else 0, so
  // that the index flags exactly the dictations that can be played.
  uint16_t UsageValue() const { return sentences.empty() ? 0 : 0x0100; }

  uint8_t groupKey = 0;
  CodePageText title;
  ObjectList<DictationSentence> sentences;
};

}  // namespace lumora

#pragma GCC visibility pop
