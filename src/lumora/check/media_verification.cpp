#include <lumora/check/media_verification.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace lumora {

std::vector<IndexedFile> IndexedAmong(const std::string& localRoot, uint32_t type,
                                      const TypeIndex& index,
                                      const std::vector<ScannedResource>& scanned) {
  auto indexed = NumbersOf(index);
  if (!indexed) return {};
  std::vector<uint32_t>& numbers = indexed->numbers;
  std::sort(numbers.begin(), numbers.end());
  struct Candidate {
    uint32_t number;
    IndexedFile file;
    bool twin;
  };
  std::vector<Candidate> candidates;
  for (size_t i = 0; i < scanned.size(); ++i) {
    const ScannedResource& file = scanned[i];
    if (!file.course || !file.isFile) continue;
    const uint32_t id = MakeResourceId(*file.course, file.number);
    if (!std::binary_search(numbers.begin(), numbers.end(), NumberOf(id))) continue;
    // Only the name the library builds for this identifier is ever read.
    const std::string read = ResourceFilePath(localRoot, type, id);
    if (file.path != read && !(file.twin && file.path == ChangeExtension(read, "arh"))) continue;
    candidates.push_back({NumberOf(id), {i, id}, file.twin});
  }
  // Each indexed number in every course folder that holds it: number order, then course; of
  // the files of one resource, the ".arh" twin (which a scan lists after its ".ars" name)
  // when it is a file, else the ".ars" file.
  std::stable_sort(candidates.begin(), candidates.end(), [](const auto& a, const auto& b) {
    return std::tie(a.number, a.file.resourceId) < std::tie(b.number, b.file.resourceId);
  });
  std::vector<IndexedFile> files;
  for (size_t i = 0; i < candidates.size(); ++i) {
    const bool same = !files.empty() && files.back().resourceId == candidates[i].file.resourceId;
    if (!same) {
      files.push_back(candidates[i].file);
    } else if (candidates[i].twin) {
      files.back() = candidates[i].file;
    }
  }
  return files;
}

std::vector<IndexedResourceFile> IndexedResourceFiles(
    const std::string& localRoot, const ResourceIndex& index, std::optional<uint32_t> onlyType,
    const std::function<bool(const std::string& path)>& wanted) {
  std::vector<IndexedResourceFile> chosen;
  for (uint32_t type : index.types()) {
    if (onlyType && *onlyType != type) continue;
    const TypeIndex* type_index = index.FindType(type);
    if (type_index == nullptr) continue;
    std::vector<ScannedResource> scanned = ScanResourceFiles(localRoot, type, {true});
    for (const IndexedFile& file : IndexedAmong(localRoot, type, *type_index, scanned)) {
      std::string& path = scanned[file.scanned].path;
      if (!wanted || wanted(path)) chosen.push_back({type, file.resourceId, std::move(path)});
    }
  }
  return chosen;
}

MediaVerification VerifyDecodedMedia(const std::string& localRoot, const ByteArray& qualityFolders,
                                     const IndexedResourceFile& file, ExerciseResource* decoded) {
  MediaVerification result{file.type, file.resourceId, file.path, decoded != nullptr, {}};
  if (decoded != nullptr)
    decoded->VerifyMedia(localRoot, qualityFolders, result.report, file.resourceId);
  return result;
}

MediaVerification VerifyMediaFromFile(const std::string& localRoot, const ByteArray& qualityFolders,
                                      const IndexedResourceFile& file) {
  std::unique_ptr<ExerciseResource> resource = NewResource(file.type);
  const bool read = ReadArchiveFile(file.path, *resource).ok();
  return VerifyDecodedMedia(localRoot, qualityFolders, file, read ? resource.get() : nullptr);
}

std::vector<MediaVerification> VerifyIndexedMedia(
    const std::string& localRoot, const ResourceIndex& index, const ByteArray& qualityFolders,
    std::optional<uint32_t> onlyType, const std::function<void()>& verified,
    const std::function<bool(const std::string& path)>& wanted) {
  // Nothing changes in the tree meanwhile: each folder is listed once for every medium and
  // file looked up in it.
  const ListedFiles listed;
  std::vector<MediaVerification> results;
  for (const IndexedResourceFile& file : IndexedResourceFiles(localRoot, index, onlyType, wanted)) {
    results.push_back(VerifyMediaFromFile(localRoot, qualityFolders, file));
    if (verified) verified();
  }
  return results;
}

}  // namespace lumora
