#include <lumora/frame/boundary.h>
#include <lumora/frame/content_config.h>
#include <lumora/lumora.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type2000_index.h>
#include <lumora/support/profile_file.h>

#include <memory>

namespace lumora {
namespace {

bool ListDisciplines(const char* content_root, KeyedTable<DisciplineInfo>* list) {
  if (list == nullptr) return false;
  list->Clear();
  if (content_root == nullptr) return false;
  const std::string root = NormalizedRoot(content_root);
  ProfileFile ini;
  if (!ini.Load(ContentIniPath(root))) return false;
  // The shared Local root as it stands in this file; the library's own common roots belong to
  // the last open and stay as they are.
  const std::string local = ReadCommonLocal(ini, root);

  // One description index serves every section: each load replaces what the last one read.
  Type2000Index descriptions;
  for (uint32_t n = 1; ini.FindSection(DisciplineSectionName(n)); ++n) {
    const uint32_t id = ReadDisciplineId(ini);
    auto owned = std::make_unique<DisciplineInfo>();
    DisciplineInfo& info = *owned;
    list->Add(id, std::move(owned));
    ReadTypeAndParam(ini, info);
    // A section without a readable description ends the list; the records so far stay.
    if (!descriptions.Load(IndexFilePath(local + DisciplineFolder(id), 2000))) return false;
    descriptions.CollectGroupKeys(info.values);
  }
  return true;
}

}  // namespace
}  // namespace lumora

bool lmGetDisciplines(const char* contentRoot, lumora::KeyedTable<lumora::DisciplineInfo>* list) {
  return lumora::Guarded(false, [&] { return lumora::ListDisciplines(contentRoot, list); });
}
