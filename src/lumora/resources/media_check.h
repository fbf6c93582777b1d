// What the media verifications of the exercise types share: the lookups a verification makes
// for one medium, the copies an export expects in each quality folder, and the resource files
// that a resource's link records name.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

// Looks `media` up below `root` once per listed quality folder, as the export will, stopping
// once a video has been found (videos are copied once). When no lookup finds it, answers the
// file the first lookup tried: the kind's first extension in the first listed folder. Empty
// when it was found, when no folder is listed, or when the reference names no file at all
// (folder 0 or an unknown kind).
std::string LookUpMissingMedium(const std::string& root, const ByteArray& quality_folders,
                                MediaRef& media);

// The quality folders that lack their own copy of `media` below `root`, each as the file a
// lookup tries first there. Every listed folder should hold a copy, except for a video, which
// an export always puts in Q3 and which is therefore expected there only.
std::vector<std::string> MissingMediumCopies(const std::string& root,
                                             const ByteArray& quality_folders,
                                             const MediaRef& media);

struct LinkedFile {
  uint32_t type;
  std::string path;
};

// The resource files that `records` link to, in the course of `resource_id`: one per link
// record whose target type (the u32 at offset 8) is not 0, with the target number at offset 12.
std::vector<LinkedFile> LinkedResourceFiles(const std::string& root, const RecordArray16& records,
                                            uint32_t resource_id);

}  // namespace lumora
