// The resource class of type 21, Riddle: a title, the riddle and its answer, and the clues,
// each a text with its medium. Link records in the head name other resources whose files the
// verification checks. The two leading values are the authoring tool's; the library keeps
// them unchanged, and the type's index lists each resource under its first value.
//
// Stored form after the head and the type tag: u8 value, u8 value, title (CodePageText),
// riddle (MarkedText), answer (MarkedText), then the clues as an object list of TextWithMedia
// (MarkedText, MediaRef).
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>
#include <lumora/resources/types/text_with_media.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type21Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 21;

  const char* ClassName() const override { return "Type21Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  uint8_t firstValue = 0;
  uint8_t secondValue = 0;
  CodePageText title;
  MarkedText riddle;
  MarkedText answer;
  ObjectList<TextWithMedia> clues;
};

}  // namespace lumora

#pragma GCC visibility pop
