// The resource files of a package export: each exported row's file copied from the discipline's
// Local root into the export folder, with its media, and the video identifiers that type-8
// resources name collected on the way (they say which lessons the export holds).
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/media_copy_queue.h>

#include <cstdint>
#include <set>
#include <string>

namespace lumora {

class Type8Resource;

// Format("%sC%04d/r%07d/r%07d.ars", folder, course, type, number), the course being the
// identifier's top 12 bits read as a signed number, as the export has always named them.
std::string ExportResourcePath(const std::string& folder, int32_t type, int32_t resourceId);

// Copies resource files with their media, through the export's CopyQueue. Each file is read
// once: its bytes are decoded here for its media while the queue's writer writes them to the
// copy, and they are kept (KeptFiles) for the index rebuild that reads the copies back.
class ExportResourceCopier {
 public:
  // Problems are said through `copies`, in the order of the copies they concern; the copier
  // goes on after each.
  ExportResourceCopier(std::string sourceFolder, std::string exportFolder,
                       const ByteArray& qualityFolders, CopyQueue& copies);

  // Copies the resource file of `type` and `resourceId` with its media. Nothing happens for a
  // number that is no exercise type, and nothing is said of a file the source lacks.
  void Copy(int32_t type, int32_t resourceId);

  // The identifiers of the type-1003 videos that copied type-8 resources link to, ascending.
  const std::set<uint32_t>& referencedIds() const { return referencedIds_; }

 private:
  // Resource files larger than this are copied a block at a time and read again to decode.
  static constexpr uint64_t kMostBytesInMemory = uint64_t{16} << 20;

  void CollectVideoLinks(const Type8Resource& questions);

  std::string sourceFolder_;
  std::string exportFolder_;
  const ByteArray& qualityFolders_;
  CopyQueue& copies_;
  std::set<uint32_t> referencedIds_;
};

}  // namespace lumora
