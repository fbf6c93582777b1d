#include <lumora/resources/index_forms.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1006.h>

namespace lumora {

bool BuildType1006Index(const std::string& resource_root, const std::string& index_folder) {
  PlainNumberIndex index;
  bool result = true;
  return BuildIndexFromResources<Type1006Resource>(
      resource_root, index_folder, index,
      [](PlainNumberIndex& i, const Type1006Resource&, uint32_t number) { i.numbers.Add(number); },
      result);
}

}  // namespace lumora
