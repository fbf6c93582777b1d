#include <lumora/resources/export_indexes.h>
#include <lumora/resources/type_catalog.h>

namespace lumora {

bool RebuildExportIndexes(const std::string& export_root) {
  bool all_built = true;
  for (uint32_t type : kExerciseTypes) {
    all_built = BuildTypeIndex(type, export_root, export_root) && all_built;
  }
  return all_built;
}

}  // namespace lumora
