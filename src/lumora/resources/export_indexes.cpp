#include <lumora/resources/export_indexes.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/resources/types/index_builders.h>
#include <lumora/resources/types/type1005.h>
#include <lumora/resources/types/type40.h>

namespace lumora {

bool RebuildExportIndexes(const std::string& export_root) {
  bool all_built = true;
  for (uint32_t type : kExerciseTypes) {
    // Type 40's usage values come from the type-1005 index, which is rebuilt once, just before.
    if (type == kContentElementType) continue;
    if (type == Type40Resource::kType) {
      all_built = BuildTypeIndex(kContentElementType, export_root, export_root) && all_built;
      all_built = BuildType40IndexOverElements(export_root, export_root) && all_built;
      continue;
    }
    all_built = BuildTypeIndex(type, export_root, export_root) && all_built;
  }
  return all_built;
}

}  // namespace lumora
