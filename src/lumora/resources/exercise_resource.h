// The base of the 26 resource classes. A host creates the object of the class it wants and
// hands it to lmGetResource, so the virtual operations keep a fixed order:
//   ResolveMedia, GetType, ReservedCheck, CopyMedia, VerifyMedia.
//
// Every resource file starts with the same head: u32 magic "ARS\0", u32 ResourceId, and a
// RecordArray16 of link records; every class but type 1005 then writes its u32 type tag.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/content_request.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

inline constexpr uint32_t kResourceMagic = 0x00535241;

class ExerciseResource : public Object {
 public:
  const char* ClassName() const override { return "ExerciseResource"; }
  // Stores or loads the head; a wrong magic is a bad-class archive error.
  void Serialize(Archive& ar) override;

  // Resolves every medium the resource holds against local_root, answering paths below
  // chosen_root (the root of the request's path kind).
  virtual void ResolveMedia(const ContentRequest& request, const std::string& local_root,
                            const std::string& chosen_root) {
    (void)request, (void)local_root, (void)chosen_root;
  }
  virtual uint32_t GetType() const = 0;
  virtual bool ReservedCheck(uint32_t value) {
    (void)value;
    return true;
  }
  // Copies the resource's media from source_root into destination_root for the quality
  // folders listed.
  virtual bool CopyMedia(const std::string& destination_root, uint32_t destination_id,
                         const ByteArray& quality_folders, const std::string& source_root) {
    (void)destination_root, (void)destination_id, (void)quality_folders, (void)source_root;
    return true;
  }
  // Empties `report`, appends a line for every missing medium or referenced file, and answers
  // whether the report stayed empty.
  virtual bool VerifyMedia(const std::string& root, const ByteArray& quality_folders,
                           std::string& report, uint32_t resource_id) {
    (void)root, (void)quality_folders, (void)resource_id;
    report.clear();
    return true;
  }

  RecordArray16 records;
  uint32_t resourceId = 0;

 protected:
  // The head followed by the class's type tag; a different tag is a bad-class archive error.
  void SerializeHeadAndTag(Archive& ar);
};

}  // namespace lumora

#pragma GCC visibility pop
