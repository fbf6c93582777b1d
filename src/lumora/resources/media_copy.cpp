#include <lumora/platform/atomic_write.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/media_copy.h>
#include <lumora/resources/media_copy_queue.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

#include <algorithm>

namespace lumora {
namespace {

// The lookup answers in UNC form below the source root: the file name follows the last
// backslash, and the rest below the root becomes a local path again.
std::string FileNameOf(const std::string& unc_path) {
  return unc_path.substr(unc_path.find_last_of('\\') + 1);
}

std::string LocalPathOf(const std::string& unc_path, const std::string& root) {
  std::string relative = unc_path.substr(root.size());
  std::replace(relative.begin(), relative.end(), '\\', kPathSeparator);
  return root + relative;
}

}  // namespace

bool CopyFileInto(const std::string& from, const std::string& folder, const std::string& name) {
  const std::string destination = folder + name;
  CopyQueue* queue = CopyQueue::Current();
  if (queue == nullptr) {
    if (!FolderExists(folder) && !CreateFolderPath(folder)) return false;
    return CopyFileAtomically(from, destination).ok();
  }
  if (!queue->MakeFolder(folder)) return false;
  if (queue->ClaimDestination(destination)) queue->Copy(from, destination, std::string());
  return true;
}

MediaCopier::MediaCopier(const std::string& destination_root, uint32_t destination_id,
                         uint32_t type, const ByteArray& quality_folders,
                         const std::string& source_root)
    : destination_root_(destination_root),
      destination_id_(destination_id),
      type_(type),
      quality_folders_(quality_folders),
      source_root_(source_root) {}

std::string MediaCopier::DestinationFolder(uint32_t quality_folder) const {
  return destination_root_ + CourseFolderName(CourseOf(destination_id_)) + kPathSeparator +
         NumberedName('r', type_) + kPathSeparator + "Q" + std::to_string(quality_folder) +
         kPathSeparator;
}

bool MediaCopier::Copy(const MediaRef& media) const {
  const bool video = media.kind == kMediaVideo;
  for (uint8_t q : quality_folders_) {
    MediaRef found = media;
    if (!found.BuildPath(source_root_, kPathUnc, source_root_, q)) continue;
    if (!CopyFileInto(LocalPathOf(found.path, source_root_), DestinationFolder(video ? 3 : q),
                      FileNameOf(found.path))) {
      return false;
    }
    if (video) break;
  }
  return true;
}

}  // namespace lumora
