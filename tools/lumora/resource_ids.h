// The resource ids behind the numbers of a type's index. An index file lists resource numbers
// only, without their course, so the ids are found where the files lie: below the discipline's
// local root, in the course folders (C0000, C0001, ...) that hold the type's folder.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::cli {

// For each of `numbers` in order, the id of every course folder below `local_root` whose folder
// of `type` holds the number's resource file (.ars or .arh), in course order; a number no course
// holds gives course 0, whose file does not exist, so that the resource answers why.
std::vector<uint32_t> IndexedResourceIds(const std::string& local_root, uint32_t type,
                                         const std::vector<uint32_t>& numbers);

}  // namespace lumora::cli
