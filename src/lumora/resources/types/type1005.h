// The content element: the resource class of type 1005, also embedded by other types for each
// piece of text with its medium and translations. An element can instead stand for a stored
// type-1005 resource (isReference), in which case it carries only the reference; resolving its
// media loads the resource it names into it.
//
// Stored form (no type tag after the head): reference u32, isReference u8 (1 or 0); unless a
// reference: media (7 bytes), text (MarkedText), translations (LanguageTexts), note (archive
// string), first and second attribute lists (ByteArray).
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

inline constexpr uint32_t kContentElementType = 1005;

class ContentElement : public ExerciseResource {
 public:
  const char* ClassName() const override { return "ContentElement"; }
  void Serialize(Archive& ar) override;

  // Expands a reference into the element it names (a failed load is ignored), then builds the
  // path of the element's medium when it has one.
  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kContentElementType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  // Reports the element's own medium when no quality folder holds it. A reference carries no
  // medium of its own, so it has nothing to report.
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  MarkedText text;
  std::string note;
  MediaRef media;
  LanguageTexts translations;
  uint32_t reference = 0;  // ResourceId of a stored type-1005 resource
  bool isReference = false;
  ByteArray firstAttributes;
  ByteArray secondAttributes;
};

}  // namespace lumora

#pragma GCC visibility pop
