#include <lumora/check/media_verification.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace lumora {
namespace {

// The resource file the library reads for each resource of `type` below local_root, by
// identifier: the ".arh" twin when it is a file, else the ".ars" file, in course folders only.
std::map<uint32_t, std::string> FilesByResource(const std::string& local_root, uint32_t type) {
  std::map<uint32_t, std::string> files;
  for (const ScannedResource& file : ScanResourceFiles(local_root, type, {true})) {
    if (!file.course || !file.isFile) continue;
    const uint32_t id = MakeResourceId(*file.course, file.number);
    // Only the name the library builds for this identifier is ever read.
    const std::string read = ResourceFilePath(local_root, type, id);
    if (file.path != read && !(file.twin && file.path == ChangeExtension(read, "arh"))) continue;
    auto& path = files[id];
    if (path.empty() || file.twin) path = file.path;
  }
  return files;
}

MediaVerification Verify(const std::string& local_root, const ByteArray& quality, uint32_t type,
                         uint32_t resource_id, const std::string& path) {
  MediaVerification result{type, resource_id, path, false, {}};
  // The file is the one the library reads for the resource (its ".arh" twin when that is a
  // file), as FilesByResource chose it.
  std::unique_ptr<ExerciseResource> resource = NewResource(type);
  result.read = ReadArchiveFile(path, *resource).ok();
  if (result.read) resource->VerifyMedia(local_root, quality, result.report, resource_id);
  return result;
}

}  // namespace

std::vector<MediaVerification> VerifyIndexedMedia(
    const std::string& localRoot, const ResourceIndex& index, const ByteArray& qualityFolders,
    std::optional<uint32_t> onlyType, const std::function<void()>& verified,
    const std::function<bool(const std::string& path)>& wanted) {
  // Nothing changes in the tree meanwhile: each folder is listed once for every medium and
  // file looked up in it.
  const ListedFiles listed;
  std::vector<MediaVerification> results;
  for (uint32_t type : index.types()) {
    if (onlyType && *onlyType != type) continue;
    const TypeIndex* type_index = index.FindType(type);
    const auto indexed = type_index ? NumbersOf(*type_index) : std::nullopt;
    if (!indexed) continue;
    const std::set<uint32_t> numbers(indexed->numbers.begin(), indexed->numbers.end());
    // Each indexed number in every course folder that holds it: number order, then course.
    std::vector<std::pair<uint32_t, uint32_t>> found;  // number, resource identifier
    const std::map<uint32_t, std::string> files = FilesByResource(localRoot, type);
    for (const auto& [id, path] : files) {
      if (numbers.count(NumberOf(id)) != 0 && (!wanted || wanted(path))) {
        found.emplace_back(NumberOf(id), id);
      }
    }
    std::sort(found.begin(), found.end());
    for (const auto& [number, id] : found) {
      results.push_back(Verify(localRoot, qualityFolders, type, id, files.at(id)));
      if (verified) verified();
    }
  }
  return results;
}

}  // namespace lumora
