#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type1003_index.h>

#include <memory>

namespace lumora {

bool BuildType1003Index(const std::string& resource_root, const std::string& index_folder) {
  Type1003Index index;
  bool result = true;
  return BuildIndexFromResources<Type1003Resource>(
      resource_root, index_folder, index,
      [](Type1003Index& i, const Type1003Resource& video, uint32_t number) {
        auto entry = std::make_unique<Type1003Entry>();
        entry->paragraphCount = video.script.paragraphs.size();
        i.table.Add(number, std::move(entry));
      },
      result);
}

}  // namespace lumora
