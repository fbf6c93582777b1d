// The resource files of a package export: each exported row's file copied from the discipline's
// Local root into the export folder, with its media, and the video identifiers that type-8
// resources name collected on the way (they say which lessons the export holds).
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/platform/write_queue.h>

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace lumora {

class Type8Resource;

// Format("%sC%04d/r%07d/r%07d.ars", folder, course, type, number), the course being the
// identifier's top 12 bits read as a signed number, as the export has always named them.
std::string ExportResourcePath(const std::string& folder, int32_t type, int32_t resourceId);

// Copies resource files with their media. Each file is read once: its bytes are decoded here
// for its media while a second thread writes them to the copy, and they are kept (KeptFiles)
// for the index rebuild that reads the copies back.
class ExportResourceCopier {
 public:
  // Problems are appended to `report` in the order of the copies they concern, each once the
  // write it waits for has finished; the copier goes on after each.
  ExportResourceCopier(std::string sourceFolder, std::string exportFolder,
                       const ByteArray& qualityFolders, std::string& report);

  // Copies the resource file of `type` and `resourceId` with its media. Nothing happens for a
  // number that is no exercise type, and nothing is said of a file the source lacks.
  void Copy(int32_t type, int32_t resourceId);

  // Waits for every write still running and says what is left to say. Called before anything
  // else goes into the report and before the copies are read back.
  void Finish();

  // The identifiers of the type-1003 videos that copied type-8 resources link to, ascending.
  const std::set<uint32_t>& referencedIds() const { return referencedIds_; }

 private:
  // Resource files larger than this are copied a block at a time and read again to decode.
  static constexpr uint64_t kMostBytesInMemory = uint64_t{16} << 20;
  static constexpr uint64_t kNoWrite = UINT64_MAX;

  // A report line, said in turn. One that names a write holds the source file of the copy, and
  // is said only when that write failed.
  struct Line {
    std::string text;
    uint64_t write = kNoWrite;
  };

  void Queue(WriteQueue::Job job, const std::string& source);
  void Say(std::string text, uint64_t write = kNoWrite);
  // Takes the finished writes (all of them, waiting, with `all`) and says the lines that no
  // longer wait for one.
  void Collect(bool all);
  void CollectVideoLinks(const Type8Resource& questions);
  bool MakeFolder(const std::string& folder);

  std::string sourceFolder_;
  std::string exportFolder_;
  const ByteArray& qualityFolders_;
  std::string& report_;
  std::set<uint32_t> referencedIds_;
  std::set<std::string> madeFolders_;
  std::optional<WriteQueue> writes_;
  uint64_t queued_ = 0;
  std::vector<bool> failed_;  // of each finished write, in queue order
  std::deque<Line> lines_;
};

}  // namespace lumora
