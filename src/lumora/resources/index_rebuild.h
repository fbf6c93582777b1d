// Rebuilding a discipline's index files where they are read from. The new files are built in
// a scratch folder outside the content tree, then replace the old ones in one FolderCommit: a
// failure or a crash leaves every old index file in place, and readers never meet a mixture.
#pragma once

#include <lumora/platform/write_status.h>

#include <cstdint>
#include <string>
#include <vector>

namespace lumora {

struct TypeRebuild {
  uint32_t type = 0;
  bool built = false;  // every resource file of the type was read and the index made
};

// Rebuilds the index of each of `types` from the resources below `resource_root` and
// replaces them in `data_folder` together. A type whose index could not be made at all stops
// the whole replacement; one with unreadable resource files is replaced without them and
// reported not built. `results` gets one entry per type, in the order given.
WriteStatus RebuildIndexesInPlace(const std::string& resource_root, const std::string& data_folder,
                                  const std::vector<uint32_t>& types,
                                  std::vector<TypeRebuild>& results);

}  // namespace lumora
