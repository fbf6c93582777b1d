// The resource files of a package export: each exported row's file copied from the discipline's
// Local root into the export folder, with its media, and the video identifiers that type-8
// resources name collected on the way (they say which lessons the export holds).
#pragma once

#include <lumora/platform/typed_array.h>

#include <cstdint>
#include <set>
#include <string>

namespace lumora {

// Format("%sC%04d/r%07d/r%07d.ars", folder, course, type, number), the course being the
// identifier's top 12 bits read as a signed number, as the export has always named them.
std::string ExportResourcePath(const std::string& folder, int32_t type, int32_t resourceId);

class ExportResourceCopier {
 public:
  // Problems are appended to `report`; the copier goes on after each.
  ExportResourceCopier(std::string sourceFolder, std::string exportFolder,
                       const ByteArray& qualityFolders, std::string& report);

  // Copies the resource file of `type` and `resourceId` with its media. Nothing happens for a
  // number that is no exercise type, and nothing is said of a file the source lacks.
  void Copy(int32_t type, int32_t resourceId);

  // The identifiers of the type-1003 videos that copied type-8 resources link to, ascending.
  const std::set<uint32_t>& referencedIds() const { return referencedIds_; }

 private:
  void CollectVideoLinks(int32_t resourceId);
  bool MakeFolder(const std::string& folder);

  std::string sourceFolder_;
  std::string exportFolder_;
  const ByteArray& qualityFolders_;
  std::string& report_;
  std::set<uint32_t> referencedIds_;
  std::set<std::string> madeFolders_;
};

}  // namespace lumora
