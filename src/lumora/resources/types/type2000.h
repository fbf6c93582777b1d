// The resource class of type 2000: the description of one part of a discipline, which the
// discipline reads through the type-2000 index (one entry per resource).
//
// Stored form after the head and the type tag: exactly the stored form of its index entry,
// u8 attribute (the group key), titles (LanguageTexts) and media (MediaRef), so that the
// index rebuild copies the entry as it is.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/type2000_entry.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type2000Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 2000;

  const char* ClassName() const override { return "Type2000Resource"; }
  void Serialize(Archive& ar) override;

  uint32_t GetType() const override { return kType; }
  // Copies the medium; false when there is none (its resource field is 0), or when a folder
  // or a copy fails.
  bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                 const ByteArray& quality_folders, const std::string& source_root) override;
  // Without a medium: "Media not found". With one that no lookup for the quality folders
  // finds: "File not found", naming the file the first lookup tried.
  bool VerifyMedia(const std::string& root, const ByteArray& quality_folders, std::string& report,
                   uint32_t resource_id) override;

  Type2000Entry description;
};

}  // namespace lumora

#pragma GCC visibility pop
