// The resource class of type 14: two titles, an array of numbers, three lists of entries of
// one kind, a list of media and a closing text. The numbers and values are the authoring
// tool's; the library keeps them unchanged.
//
// Stored form after the head and the type tag: u32 value, u16 value, u16 value, u8 group key,
// two CodePageTexts, a DWordArray, three object lists of entries, an object list of MediaRef,
// a MarkedText.
//   entry:  u32 value, text (MarkedText)
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>
#include <lumora/resources/object_list.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type14Entry : public Object {
 public:
  const char* ClassName() const override { return "Type14Entry"; }
  void Serialize(Archive& ar) override;

  uint32_t value = 0;
  MarkedText text;
};

class Type14Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 14;

  const char* ClassName() const override { return "Type14Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint32_t value = 0;
  uint16_t firstWord = 0;
  uint16_t secondWord = 0;
  uint8_t groupKey = 0;
  CodePageText firstTitle;
  CodePageText secondTitle;
  DWordArray numbers;
  ObjectList<Type14Entry> firstEntries;
  ObjectList<Type14Entry> secondEntries;
  ObjectList<Type14Entry> thirdEntries;
  ObjectList<MediaRef> media;
  MarkedText closingText;
};

}  // namespace lumora

#pragma GCC visibility pop
