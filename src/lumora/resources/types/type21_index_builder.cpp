#include <lumora/resources/type21_index.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type21.h>

namespace lumora {

bool BuildType21Index(const std::string& resource_root, const std::string& index_folder) {
  Type21Index index;
  bool result = true;
  return BuildIndexFromResources<Type21Resource>(
      resource_root, index_folder, index,
      [](Type21Index& i, const Type21Resource& resource, uint32_t number) {
        i.Add(number, resource.firstValue);
      },
      result);
}

}  // namespace lumora
