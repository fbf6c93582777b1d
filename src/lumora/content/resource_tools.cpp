// Exercise types, resource numbering and the media check of the indexed resources.
#include <lumora/check/media_verification.h>
#include <lumora/maintenance.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>

namespace lumora {

std::vector<uint32_t> ExerciseTypeNumbers() {
  return {kExerciseTypes.begin(), kExerciseTypes.end()};
}

uint32_t ResourceCourse(uint32_t resourceId) { return CourseOf(resourceId); }

uint32_t ResourceNumber(uint32_t resourceId) { return NumberOf(resourceId); }

std::vector<VerifiedResource> VerifyMedia(const std::string& localRoot, const ResourceIndex& index,
                                          const ByteArray& qualityFolders,
                                          std::optional<uint32_t> onlyType,
                                          const std::function<void()>& verified) {
  std::vector<VerifiedResource> out;
  for (MediaVerification& v :
       VerifyIndexedMedia(localRoot, index, qualityFolders, onlyType, verified)) {
    out.push_back({v.type, v.resourceId, std::move(v.path), v.read, std::move(v.report)});
  }
  return out;
}

}  // namespace lumora
