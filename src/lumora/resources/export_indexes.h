// Index files of an export tree: once an export has copied its resources, every type's index
// file is written afresh from the copies.
#pragma once

#include <string>

namespace lumora {

// Rebuilds the index file of every exercise type, in ascending type order (type 1005 just
// before type 40, whose index reads it), from the resources below export_root into export_root
// itself. Every rebuild runs even after one has failed;
// true when all of them succeeded.
bool RebuildExportIndexes(const std::string& export_root);

}  // namespace lumora
