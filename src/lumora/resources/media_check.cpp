#include <lumora/platform/archive.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/media_check.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <algorithm>

namespace lumora {
namespace {

bool FolderHoldsCopy(const std::vector<std::string>& candidates) {
  return std::any_of(candidates.begin(), candidates.end(),
                     [](const std::string& path) { return FileListed(path); });
}

}  // namespace

std::string LookUpMissingMedium(const std::string& root, const ByteArray& quality_folders,
                                MediaRef& media) {
  if (quality_folders.empty()) return std::string();
  bool found = false;
  for (uint8_t q : quality_folders) {
    if (!media.BuildPath(root, kPathUnc, root, q)) continue;
    found = true;
    if (media.kind == kMediaVideo) break;
  }
  if (found) return std::string();
  // Named only when missing: a medium that no candidate name can be built for is not reported.
  const std::vector<std::string> first_tried = media.CandidatePaths(root, quality_folders[0]);
  return first_tried.empty() ? std::string() : first_tried.front();
}

std::vector<std::string> MissingMediumCopies(const std::string& root,
                                             const ByteArray& quality_folders,
                                             const MediaRef& media) {
  ByteArray expected;
  if (media.kind == kMediaVideo) {
    expected.Add(3);
  } else {
    expected = quality_folders;
  }
  std::vector<std::string> missing;
  for (uint8_t q : expected) {
    const std::vector<std::string> candidates = media.CandidatePaths(root, q);
    if (!candidates.empty() && !FolderHoldsCopy(candidates)) missing.push_back(candidates.front());
  }
  return missing;
}

std::vector<LinkedFile> LinkedResourceFiles(const std::string& root, const RecordArray16& records,
                                            uint32_t resource_id) {
  std::vector<LinkedFile> files;
  for (const Record16& link : records) {
    const uint32_t type = DecodeU32(link.bytes.data() + 8);
    const uint32_t number = DecodeU32(link.bytes.data() + 12);
    if (type == 0) continue;
    files.push_back(
        {type, ResourceFilePath(root, type, MakeResourceId(CourseOf(resource_id), number))});
  }
  return files;
}

}  // namespace lumora
