// Finding a medium in the quality folders, for media verification. A medium counts as present when
// a lookup made for one of the quality folders of the export finds it below the root; with no
// quality folder listed nothing is looked up and nothing counts as present.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>
#include <string>

namespace lumora {

// Looks `media` up below `root` with each quality folder of the list as the selector, in
// order, until one lookup finds it; the found file's path (UNC form) is left in media.path.
bool FindInQualityFolders(MediaRef& media, const std::string& root,
                          const ByteArray& quality_folders);

// The file named in a report for a medium that was not found: the file that the lookup
// for the first listed quality folder q tries first, root + "C%04d/r%07d/Q%d/" + stem and
// the kind's first extension (".swf", or ".mpg" for a video). Q3 stands in for an empty
// list. A kind without files has only the folder.
std::string ExpectedMediaPath(const MediaRef& media, const std::string& root,
                              const ByteArray& quality_folders);

}  // namespace lumora
