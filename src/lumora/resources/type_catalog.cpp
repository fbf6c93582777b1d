#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type1006.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type1010_index.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type40.h>
#include <lumora/resources/types/type8.h>

#include <algorithm>

namespace lumora {

bool IsExerciseType(uint32_t type) {
  return std::find(kExerciseTypes.begin(), kExerciseTypes.end(), type) != kExerciseTypes.end();
}

std::unique_ptr<TypeIndex> NewTypeIndex(uint32_t type) {
  using enum UsageFlag;
  switch (type) {
    case 1:
    case 4:
    case 10:
    case 14:
    case 16:
    case 17:
    case 18:
    case 19:
    case 20:
      return std::make_unique<GroupsIndex>();
    case 2:
    case 7:
      return std::make_unique<UsageIndex<uint16_t, kAlwaysTrue>>();
    case 5:
      return std::make_unique<UsageIndex<uint16_t, kTopByte>>();
    case 3:
    case 9:
      return std::make_unique<UsageIndex<uint8_t, kAlwaysTrue>>();
    case 8:
    case 12:
    case 13:
    case 15:
    case 28:
      return std::make_unique<UsageIndex<uint8_t, kTopByte>>();
    case 40:
      return std::make_unique<UsageIndex<uint32_t, kTopByte>>();
    case 1003:
      return std::make_unique<Type1003Index>();
    case 1005:
      return std::make_unique<Type1005Index>();
    case 1006:
      return std::make_unique<PlainNumberIndex>();
    case 1010:
      return std::make_unique<Type1010Index>();
    case 2000:
      return std::make_unique<Type2000Index>();
    default:
      return nullptr;
  }
}

std::unique_ptr<ExerciseResource> NewResource(uint32_t type) {
  switch (type) {
    case Type8Resource::kType:
      return std::make_unique<Type8Resource>();
    case Type40Resource::kType:
      return std::make_unique<Type40Resource>();
    case Type1003Resource::kType:
      return std::make_unique<Type1003Resource>();
    case kContentElementType:
      return std::make_unique<ContentElement>();
    case Type1006Resource::kType:
      return std::make_unique<Type1006Resource>();
    case Type1010Resource::kType:
      return std::make_unique<Type1010Resource>();
    case Type2000Resource::kType:
      return std::make_unique<Type2000Resource>();
    default:
      return nullptr;
  }
}

bool BuildTypeIndex(uint32_t type, const std::string& resource_root,
                    const std::string& index_folder) {
  switch (type) {
    case Type8Resource::kType:
      return BuildType8Index(resource_root, index_folder);
    case Type40Resource::kType:
      return BuildType40Index(resource_root, index_folder);
    case Type1003Resource::kType:
      return BuildType1003Index(resource_root, index_folder);
    case kContentElementType:
      return BuildType1005Index(resource_root, index_folder);
    case Type1006Resource::kType:
      return BuildType1006Index(resource_root, index_folder);
    case Type1010Resource::kType:
      return BuildType1010Index(resource_root, index_folder);
    case Type2000Resource::kType:
      return BuildType2000Index(resource_root, index_folder);
    default:
      return false;
  }
}

}  // namespace lumora
