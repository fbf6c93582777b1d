// Where an export of one discipline goes below its destination root.
#pragma once

#include <cstdint>
#include <string>

namespace lumora {

// Format("%sD%03d/", destinationRoot, disciplineId), the root given a separator when it lacks
// one.
std::string ExportFolderOf(const std::string& destinationRoot, uint32_t disciplineId);

}  // namespace lumora
