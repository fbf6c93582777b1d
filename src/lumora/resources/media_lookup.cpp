#include <lumora/resources/content_request.h>
#include <lumora/resources/media_lookup.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/paths.h>

namespace lumora {
namespace {

std::string FirstFileName(const MediaRef& media) {
  const uint32_t number = NumberOf(media.resource);
  switch (media.kind) {
    case kMediaSound:
      return NumberedName('s', number) + ".swf";
    case kMediaPicture:
      return NumberedName('p', number) + ".swf";
    case kMediaVideo:
      return NumberedName('v', number) + ".mpg";
    default:
      return std::string();
  }
}

}  // namespace

bool FindInQualityFolders(MediaRef& media, const std::string& root,
                          const ByteArray& quality_folders) {
  for (uint8_t q : quality_folders) {
    if (media.BuildPath(root, kPathUnc, root, q)) return true;
  }
  return false;
}

std::string ExpectedMediaPath(const MediaRef& media, const std::string& root,
                              const ByteArray& quality_folders) {
  const uint8_t q = quality_folders.empty() ? 3 : quality_folders[0];
  return root + CourseFolderName(CourseOf(media.resource)) + kPathSeparator +
         NumberedName('r', media.folder) + kPathSeparator + "Q" + std::to_string(q) +
         kPathSeparator + FirstFileName(media);
}

}  // namespace lumora
