#include <lumora/resources/type2000_index.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type2000.h>

#include <memory>

namespace lumora {

bool BuildType2000Index(const std::string& resource_root, const std::string& index_folder) {
  Type2000Index index;
  bool result = true;
  return BuildIndexFromResources<Type2000Resource>(
      resource_root, index_folder, index,
      [](Type2000Index& i, const Type2000Resource& resource, uint32_t number) {
        i.table.Add(number, std::make_unique<Type2000Entry>(resource.description));
      },
      result);
}

}  // namespace lumora
