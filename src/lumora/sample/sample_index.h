// The index files of one discipline: the description index, written from its entries, and the
// indexes of the other types, rebuilt by the library from the resource files.
#pragma once

#include <string>

namespace lumora::sample {

// Writes the description index into `data_folder`, the folder of a discipline's index files.
bool WriteDescriptionIndex(const std::string& data_folder, std::string* error);

// Rebuilds the indexes of types 1005 and 40 in `data_folder` from the resource files below the
// discipline's Local root `root`.
bool RebuildResourceIndexes(const std::string& root, const std::string& data_folder,
                            std::string* error);

// Rebuilds the indexes of types 1005 and 40 and of the other types the package's resources
// have: 5, 8, 10, 28 and 1003.
bool RebuildPackageIndexes(const std::string& root, const std::string& data_folder,
                           std::string* error);

// Rebuilds the index of every exercise type but the descriptions, which are written from their
// entries instead.
bool RebuildEveryTypeIndex(const std::string& root, const std::string& data_folder,
                           std::string* error);

}  // namespace lumora::sample
