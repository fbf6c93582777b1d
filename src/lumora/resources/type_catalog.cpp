#include <lumora/resources/index_forms.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/resources/type21_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/groups_index_builder.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1.h>
#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type1003.h>
#include <lumora/resources/types/type1003_index.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type1005_index.h>
#include <lumora/resources/types/type1006.h>
#include <lumora/resources/types/type1010.h>
#include <lumora/resources/types/type1010_index.h>
#include <lumora/resources/types/type12.h>
#include <lumora/resources/types/type13.h>
#include <lumora/resources/types/type14.h>
#include <lumora/resources/types/type15.h>
#include <lumora/resources/types/type16.h>
#include <lumora/resources/types/type17.h>
#include <lumora/resources/types/type18.h>
#include <lumora/resources/types/type19.h>
#include <lumora/resources/types/type2.h>
#include <lumora/resources/types/type20.h>
#include <lumora/resources/types/type2000.h>
#include <lumora/resources/types/type21.h>
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type3.h>
#include <lumora/resources/types/type4.h>
#include <lumora/resources/types/type40.h>
#include <lumora/resources/types/type5.h>
#include <lumora/resources/types/type7.h>
#include <lumora/resources/types/type8.h>
#include <lumora/resources/types/type9.h>

#include <algorithm>
#include <functional>

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
    case 21:
      return std::make_unique<Type21Index>();
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
    case Type1Resource::kType:
      return std::make_unique<Type1Resource>();
    case Type2Resource::kType:
      return std::make_unique<Type2Resource>();
    case Type3Resource::kType:
      return std::make_unique<Type3Resource>();
    case Type4Resource::kType:
      return std::make_unique<Type4Resource>();
    case Type7Resource::kType:
      return std::make_unique<Type7Resource>();
    case Type12Resource::kType:
      return std::make_unique<Type12Resource>();
    case Type13Resource::kType:
      return std::make_unique<Type13Resource>();
    case Type15Resource::kType:
      return std::make_unique<Type15Resource>();
    case Type16Resource::kType:
      return std::make_unique<Type16Resource>();
    case Type17Resource::kType:
      return std::make_unique<Type17Resource>();
    case Type18Resource::kType:
      return std::make_unique<Type18Resource>();
    case Type5Resource::kType:
      return std::make_unique<Type5Resource>();
    case Type9Resource::kType:
      return std::make_unique<Type9Resource>();
    case Type10Resource::kType:
      return std::make_unique<Type10Resource>();
    case Type14Resource::kType:
      return std::make_unique<Type14Resource>();
    case Type19Resource::kType:
      return std::make_unique<Type19Resource>();
    case Type20Resource::kType:
      return std::make_unique<Type20Resource>();
    case Type21Resource::kType:
      return std::make_unique<Type21Resource>();
    case Type28Resource::kType:
      return std::make_unique<Type28Resource>();
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
  using enum UsageFlag;
  switch (type) {
    case Type1Resource::kType:
      return BuildGroupsIndex<Type1Resource>(resource_root, index_folder);
    case Type2Resource::kType:
      return BuildType2Index(resource_root, index_folder);
    case Type3Resource::kType:
      return BuildType3Index(resource_root, index_folder);
    case Type4Resource::kType:
      return BuildGroupsIndex<Type4Resource>(resource_root, index_folder);
    case Type7Resource::kType:
      return BuildType7Index(resource_root, index_folder);
    case Type12Resource::kType:
      return BuildType12Index(resource_root, index_folder);
    case Type13Resource::kType:
      return BuildType13Index(resource_root, index_folder);
    case Type15Resource::kType:
      return BuildType15Index(resource_root, index_folder);
    case Type16Resource::kType:
      return BuildGroupsIndex<Type16Resource>(resource_root, index_folder);
    case Type17Resource::kType:
      return BuildGroupsIndex<Type17Resource>(resource_root, index_folder);
    case Type18Resource::kType:
      return BuildGroupsIndex<Type18Resource>(resource_root, index_folder);
    case Type5Resource::kType:
      return BuildUsageIndex<Type5Resource, uint16_t, kTopByte>(
          resource_root, index_folder, std::mem_fn(&Type5Resource::UsageValue));
    case Type9Resource::kType:
      return BuildUsageIndex<Type9Resource, uint8_t, kAlwaysTrue>(
          resource_root, index_folder, std::mem_fn(&Type9Resource::UsageValue));
    case Type10Resource::kType:
      return BuildGroupsIndex<Type10Resource>(resource_root, index_folder);
    case Type14Resource::kType:
      return BuildGroupsIndex<Type14Resource>(resource_root, index_folder);
    case Type19Resource::kType:
      return BuildGroupsIndex<Type19Resource>(resource_root, index_folder);
    case Type20Resource::kType:
      return BuildGroupsIndex<Type20Resource>(resource_root, index_folder);
    case Type21Resource::kType:
      return BuildType21Index(resource_root, index_folder);
    case Type28Resource::kType:
      return BuildUsageIndex<Type28Resource, uint8_t, kTopByte>(
          resource_root, index_folder, std::mem_fn(&Type28Resource::UsageValue));
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
