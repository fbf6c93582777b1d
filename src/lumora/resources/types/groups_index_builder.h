// The index rebuild shared by the types whose index file is a ResourceGroups, with or without a
// usage table: every resource file of the type below resource_root is loaded, its number is
// appended to the group of its group key (a number found in two course folders is appended
// twice) and, with a usage table, its usage value is appended too. Unreadable files are skipped
// and make the result false; so does an index file that cannot be written.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>

#include <string>

namespace lumora {

// `add(index, resource, number)` files one loaded resource into the index. `result` is cleared
// by a failure as soon as it happens, so that `add` can see it; the final value is returned.
template <typename Resource, typename Index, typename AddFn>
bool BuildIndexFromResources(const std::string& resource_root, const std::string& index_folder,
                             Index& index, AddFn add, bool& result) {
  for (const ScannedResource& file : ScanResourceFiles(resource_root, Resource::kType)) {
    Resource resource;
    if (!LoadArchiveFile(file.path, false, resource)) {
      result = false;
      continue;
    }
    add(index, resource, file.number);
  }
  if (!LoadArchiveFile(IndexFilePath(index_folder, Resource::kType), true, index)) result = false;
  return result;
}

// Groups only: the resource class's `groupKey` decides the group.
template <typename Resource>
bool BuildGroupsIndex(const std::string& resource_root, const std::string& index_folder) {
  GroupsIndex index;
  bool result = true;
  return BuildIndexFromResources<Resource>(
      resource_root, index_folder, index,
      [](GroupsIndex& i, const Resource& r, uint32_t number) {
        i.groups.FindOrInsert(r.groupKey).Add(number);
      },
      result);
}

// Groups and a usage table whose value for each resource is `usage(resource)`.
template <typename Resource, typename Value, UsageFlag kFlag, typename UsageFn>
bool BuildUsageIndex(const std::string& resource_root, const std::string& index_folder,
                     UsageFn usage) {
  UsageIndex<Value, kFlag> index;
  bool result = true;
  return BuildIndexFromResources<Resource>(
      resource_root, index_folder, index,
      [&usage](UsageIndex<Value, kFlag>& i, const Resource& r, uint32_t number) {
        i.groups.FindOrInsert(r.groupKey).Add(number);
        i.AddUsage(number, static_cast<Value>(usage(r)));
      },
      result);
}

}  // namespace lumora
