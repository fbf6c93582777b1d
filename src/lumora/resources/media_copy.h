// Copying media into an export tree. Every resource class with media copies each of its media
// references the same way, so the rule lives here once.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>
#include <string>
#include <unordered_set>

namespace lumora {

// Copies the file `from` to folder + name, replacing a file already there, after creating
// the folder and any missing parents. False when a folder cannot be created or the copy fails.
bool CopyFileInto(const std::string& from, const std::string& folder, const std::string& name);

// While one lives on the calling thread, CopyFileInto copies to each destination once: the
// resources of an export share media, and a medium already copied by one of them is there
// for the others. It also remembers the folders it made or found, which nothing removes
// meanwhile.
class MediaCopiedOnce {
 public:
  MediaCopiedOnce();
  ~MediaCopiedOnce();
  MediaCopiedOnce(const MediaCopiedOnce&) = delete;
  MediaCopiedOnce& operator=(const MediaCopiedOnce&) = delete;

 private:
  friend bool CopyFileInto(const std::string&, const std::string&, const std::string&);

  std::unordered_set<std::string> copied_;
  std::unordered_set<std::string> folders_;
  MediaCopiedOnce* previous_;
};

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
