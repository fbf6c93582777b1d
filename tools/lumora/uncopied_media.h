// The media that a package export leaves behind: those of types 19, 21, 28 and 1003, whose
// classes find and verify their media but have no copy of their own, so that the export copies
// none of them. Asked to (--all-media), the tool copies them after the export, to where a lookup
// in the export looks for them.
#pragma once

#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::cli {

bool IsUncopiedMediaType(uint32_t type);

struct UncopiedMediaCopy {
  uint64_t files = 0;
  uint64_t bytes = 0;
  std::vector<std::string> problems;  // a copy that failed, with the file and the reason
};

// For every resource file of those types in the course folders of `exportFolder`, copies each
// medium it refers to from `sourceLocalRoot` for each quality folder as the export copies the
// media of other types: the file a lookup with that folder first finds, into that folder (a
// video once, into Q3). A type-19 resource's own picture goes to Q3. A resource that does not
// read is left to the resources check; a medium the source lacks is left to the media check.
UncopiedMediaCopy CopyUncopiedMedia(const std::string& sourceLocalRoot,
                                    const std::string& exportFolder, const ByteArray& quality);

}  // namespace lumora::cli
