#include <lumora/packages/export_folder.h>
#include <lumora/support/paths.h>

#include <cstdio>

namespace lumora {

std::string ExportFolderOf(const std::string& destinationRoot, uint32_t disciplineId) {
  char name[32];
  std::snprintf(name, sizeof name, "D%03u%c", disciplineId, kPathSeparator);
  return WithBackslash(destinationRoot) + name;
}

}  // namespace lumora
