// Whether the resources an index lists find their media and the resource files they refer to:
// what `lumora verify` shows for one discipline and the media check reports for every one.
// An index holds resource numbers only, so each number is looked for in every course folder.
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/resource_scan.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace lumora {

struct MediaVerification {
  uint32_t type = 0;
  uint32_t resourceId = 0;
  std::string path;  // the resource file read (its ".arh" twin when there is one)
  bool read = false;
  std::string report;  // the resource's own lines, one per missing medium or file

  bool ok() const { return read && report.empty(); }
};

// A resource whose media are to be verified: the file the library reads for it.
struct IndexedResourceFile {
  uint32_t type = 0;
  uint32_t resourceId = 0;
  std::string path;  // its ".arh" twin when that is a file, else its ".ars" file
};

// Of `scanned`, a scan of `type` below localRoot with twins, the files the library reads for the
// resources `index` lists: for each its ".arh" twin when that is a file, else its ".ars" file,
// in course folders only. In resource number order, then course order.
struct IndexedFile {
  size_t scanned = 0;  // its place in `scanned`
  uint32_t resourceId = 0;
};
std::vector<IndexedFile> IndexedAmong(const std::string& localRoot, uint32_t type,
                                      const TypeIndex& index,
                                      const std::vector<ScannedResource>& scanned);

// The resource files VerifyIndexedMedia reads, in the order it answers (see there).
std::vector<IndexedResourceFile> IndexedResourceFiles(
    const std::string& localRoot, const ResourceIndex& index, std::optional<uint32_t> onlyType,
    const std::function<bool(const std::string& path)>& wanted = {});

// The verification of `file`'s media, from the resource decoded from it, or null when the file
// does not decode: for callers that have decoded the resource already.
MediaVerification VerifyDecodedMedia(const std::string& localRoot, const ByteArray& qualityFolders,
                                     const IndexedResourceFile& file, ExerciseResource* decoded);

// The verification of `file`'s media, from the resource read from the file.
MediaVerification VerifyMediaFromFile(const std::string& localRoot, const ByteArray& qualityFolders,
                                      const IndexedResourceFile& file);

// Every resource of every type of `index` (only `onlyType` when given) whose file lies in a
// course folder below local_root, read and verified against the media of `qualityFolders`.
// In type order, then resource number order, then course order. `verified`, when given, is
// called after each resource, so that a caller can show the work move; `wanted`, when given,
// chooses the resource files to verify by their path.
std::vector<MediaVerification> VerifyIndexedMedia(
    const std::string& localRoot, const ResourceIndex& index, const ByteArray& qualityFolders,
    std::optional<uint32_t> onlyType, const std::function<void()>& verified = {},
    const std::function<bool(const std::string& path)>& wanted = {});

}  // namespace lumora
