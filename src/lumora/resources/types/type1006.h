// The resource class of type 1006: a medium of its own, a table of captioned media keyed by
// number, a title and a list of strings.
//
// Stored form after the head and the type tag: media (MediaRef), the entries (KeyedTable:
// u32 count, u8 sorted flag, and when count > 0 the keys as a DWordArray followed by every
// entry), title (CodePageText), strings (string list). An entry is a caption (CodePageText)
// followed by its medium (MediaRef).
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class CaptionedMedia : public Object {
 public:
  const char* ClassName() const override { return "CaptionedMedia"; }
  void Serialize(Archive& ar) override;

  CodePageText caption;
  MediaRef media;
};

class Type1006Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 1006;

  const char* ClassName() const override { return "Type1006Resource"; }
  void Serialize(Archive& ar) override;

  void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                    const std::string& chosen_root) override;
  uint32_t GetType() const override { return kType; }
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  // Reports every medium that names a resource (resource field other than 0) and that no
  // lookup for the quality folders finds, giving the file the first lookup tried.
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  MediaRef media;
  KeyedTable<CaptionedMedia> entries;
  CodePageText title;
  StringArray strings;

 private:
  // Its own medium first, then the entries' media in table order.
  std::vector<MediaRef*> AllMedia();
};

}  // namespace lumora

#pragma GCC visibility pop
