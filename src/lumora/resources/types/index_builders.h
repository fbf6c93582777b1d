// Index rebuilds: each scans the resource files of its type below resource_root and rewrites
// index_folder + "r%07d.ari". Unreadable resource files are skipped and make the result false;
// so does an index file that cannot be written.
#pragma once

#include <string>

namespace lumora {

// Type 8: groups and an 8-bit usage value, 1 when the resource has questions and a video.
bool BuildType8Index(const std::string& resource_root, const std::string& index_folder);

// Type 1003: the paragraph count of every video, keyed by number.
bool BuildType1003Index(const std::string& resource_root, const std::string& index_folder);

bool BuildType1005Index(const std::string& resource_root, const std::string& index_folder);

// Lists every resource with its first value byte; type 21 has no group key.
bool BuildType21Index(const std::string& resource_root, const std::string& index_folder);

// Type 1006: the numbers found, in scan order.
bool BuildType1006Index(const std::string& resource_root, const std::string& index_folder);

// Type 1010: group keys, groups, and the numbers of the resources with translated texts.
bool BuildType1010Index(const std::string& resource_root, const std::string& index_folder);

// Type 2000: every resource's description entry, keyed by number.
bool BuildType2000Index(const std::string& resource_root, const std::string& index_folder);

// Rebuilds and reloads the type-1005 index first, since its usage values come from the
// elements that its items refer to; false without writing anything when that index cannot be
// read back.
bool BuildType40Index(const std::string& resource_root, const std::string& index_folder);
// The same over the type-1005 index file already in index_folder, for a caller that has just
// rebuilt it.
bool BuildType40IndexOverElements(const std::string& resource_root,
                                  const std::string& index_folder);

// Usage value 1 when the resource has something to practise, else 0: a word (type 2), a text
// (3), a choice (7), a record after the leading one (12, 13), an item (15).
bool BuildType2Index(const std::string& resource_root, const std::string& index_folder);
bool BuildType3Index(const std::string& resource_root, const std::string& index_folder);
bool BuildType7Index(const std::string& resource_root, const std::string& index_folder);
bool BuildType12Index(const std::string& resource_root, const std::string& index_folder);
bool BuildType13Index(const std::string& resource_root, const std::string& index_folder);
bool BuildType15Index(const std::string& resource_root, const std::string& index_folder);

}  // namespace lumora
