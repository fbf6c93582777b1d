// Copying media into an export tree. Every resource class with media copies each of its media
// references the same way, so the rule lives here once.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>
#include <string>

namespace lumora {

// Copies the file `from` to folder + name, replacing a file already there, after creating
// the folder and any missing parents. False when a folder cannot be created or the copy fails.
// While a CopyQueue lives on the calling thread (an export), the copy is that queue's, made once
// per destination, and a failure is the queue's to know: the answer is whether the copy could
// be asked for.
bool CopyFileInto(const std::string& from, const std::string& folder, const std::string& name);

class MediaCopier {
 public:
  // Media go below destination_root into the course folder of destination_id and the type
  // folder of `type`; they are looked up below source_root in the listed quality folders.
  MediaCopier(const std::string& destination_root, uint32_t destination_id, uint32_t type,
              const ByteArray& quality_folders, const std::string& source_root);

  // For each quality folder q in order, finds the medium below the source root as a path
  // lookup with selector q finds it and copies it, replacing any file already there, to
  // destination + "C%04d/r%07d/Q<s>/" + its file name, where s is q, or 3 for a video. A
  // video is copied once at most. False when a folder cannot be created or a copy fails; a
  // medium that is not found is skipped.
  bool Copy(const MediaRef& media) const;

 private:
  std::string DestinationFolder(uint32_t quality_folder) const;

  std::string destination_root_;
  uint32_t destination_id_;
  uint32_t type_;
  ByteArray quality_folders_;
  std::string source_root_;
};

}  // namespace lumora
