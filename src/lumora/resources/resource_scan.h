// Finding the resource files of one exercise type below a resource root, for index rebuilds and
// for the check. A check lists the course and type folders once for all its scans: the scans
// list through ListedFolder, which answers from a shared FolderListing when one is given.
#pragma once

#include <lumora/support/folder_entries.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

struct ScannedResource {
  std::string path;
  uint32_t number;                 // what the seven characters of the name read as a decimal
  std::optional<uint32_t> course;  // from a folder named "C" and four digits
  bool twin = false;               // an ".arh" file (only when the scan asks for them)
  bool isFile = false;             // a regular file (or a link to one)
};

struct ScanOptions {
  bool twins = false;  // the ".arh" twins too, each right after its ".ars" name
};

// The course number a folder name gives: "C" and exactly four decimal digits.
std::optional<uint32_t> CourseNumberOf(std::string_view folder_name);

// Every entry named "r" + 7 characters + ".ars" in the folder "r%07d" of `type` inside every
// folder of resource_root, course folders in name order and files in name order. The number is
// read as the C library reads a decimal number: leading blanks and a sign, then digits up to
// the first other character. Entries that are not regular files are listed too; loading them
// fails like any unreadable resource.
std::vector<ScannedResource> ScanResourceFiles(const std::string& resource_root, uint32_t type,
                                               ScanOptions options = {});

// Lists into `listing` what scans of `resource_root` read: the root, each folder in it, and
// each folder named "r" + 7 characters in those.
void ListResourceFolders(const std::string& resource_root, FolderListing& listing);

}  // namespace lumora
