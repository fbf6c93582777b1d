// The index files of one discipline, each rebuilt by the library from the resource files, and
// the description files (type 2000) that the description index is built from.
#pragma once

#include <string>

namespace lumora::sample {

// Writes the discipline's descriptions as type-2000 resource files of course 0 below its Local
// root `root`, and builds their index in `data_folder` (the package rebuilds build it again,
// with the lesson video's description).
bool WriteDescriptions(const std::string& root, std::string* error);
bool RebuildDescriptionIndex(const std::string& root, const std::string& data_folder,
                             std::string* error);

// Rebuilds the indexes of types 1005 and 40 in `data_folder` from the resource files below the
// discipline's Local root `root`.
bool RebuildResourceIndexes(const std::string& root, const std::string& data_folder,
                            std::string* error);

// Rebuilds the indexes of types 1005 and 40, of the other types the package's resources have
// (5, 8, 10, 28 and 1003) and of the descriptions.
bool RebuildPackageIndexes(const std::string& root, const std::string& data_folder,
                           std::string* error);

// Rebuilds the index of every exercise type.
bool RebuildEveryTypeIndex(const std::string& root, const std::string& data_folder,
                           std::string* error);

}  // namespace lumora::sample
