#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type8.h>

namespace lumora {

// The usage value is 1 when the resource can be played, having questions and a link to its
// video, and 0 otherwise; GetResourceFlag answers exactly that.
bool BuildType8Index(const std::string& resource_root, const std::string& index_folder) {
  return BuildUsageIndex<Type8Resource, uint8_t, UsageFlag::kTopByte>(
      resource_root, index_folder, [](const Type8Resource& resource) {
        return !resource.items.empty() && resource.HasVideoLink() ? 1 : 0;
      });
}

}  // namespace lumora
