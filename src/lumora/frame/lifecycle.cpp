#include <lumora/frame/boundary.h>
#include <lumora/frame/content_config.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>
#include <lumora/platform/com_apartment.h>
#include <lumora/support/profile_file.h>

#include <memory>

namespace lumora {
namespace {

// What a discipline's destructor leaves to the close: its database connection, closed first,
// and its resource index.
void ReleaseConnectionAndIndex(Discipline& discipline) {
  if (discipline.database != nullptr) {
    discipline.database->Close();
    discipline.database.reset();
  }
  discipline.resourceIndex.reset();
}

// Registers the discipline of the current section and opens it. One whose Type is not 0 is
// dropped again by its identifier; with a duplicate identifier that drops the discipline
// registered first, as every other lookup by identifier would find that one.
void OpenDiscipline(ProfileFile& ini, const std::string& root, uint32_t id) {
  LibraryState& library = Library();
  auto owned = std::make_unique<Discipline>();
  Discipline& discipline = *owned;
  library.registry.Add(id, std::move(owned));
  discipline.Open(ini, root, library.commonLocal, DisciplineFolder(id));
  if (discipline.info.Type != 0) {
    ReleaseConnectionAndIndex(discipline);
    library.registry.RemoveKey(id);
    library.lexiconLoads.erase(id);
    return;
  }
  // A second section with the same identifier is registered behind the first, which every
  // lookup finds: its reasons are the ones kept.
  library.lexiconLoads.try_emplace(id, discipline.LoadLexicon(library.classification));
  discipline.MakeDiagnosisData();
}

bool Open(const char* content_root, uint32_t filter) {
  // Every open leaves one initialisation for the close to balance, whatever its outcome.
  ComInitialize();
  if (content_root == nullptr) return false;
  const std::string root = NormalizedRoot(content_root);
  ProfileFile ini;
  if (!ini.Load(ContentIniPath(root))) return false;

  LibraryState& library = Library();
  CommonRoots common = ReadCommonRoots(ini, root);
  library.commonLocal = std::move(common.local);
  library.commonUNC = std::move(common.unc);
  library.commonURL = std::move(common.url);
  library.classificationLoad =
      library.classification.LoadWithReason(ClassesFolder(library.commonLocal));

  for (uint32_t n = 1; ini.FindSection(DisciplineSectionName(n)); ++n) {
    const uint32_t id = ReadDisciplineId(ini);
    if (filter != 0 && id != filter) continue;
    OpenDiscipline(ini, root, id);
  }
  return library.registry.size() > 0;
}

void Close() {
  LibraryState& library = Library();
  library.classification.Clear();
  library.classificationLoad = LoadResult();
  library.lexiconLoads.clear();
  for (uint32_t i = 0; i < library.registry.size(); ++i) {
    Discipline* discipline = library.registry.ObjectAt(i);
    if (discipline != nullptr) ReleaseConnectionAndIndex(*discipline);
  }
  library.registry.Clear();
  ComUninitialize();
}

}  // namespace
}  // namespace lumora

bool lmOpen(const char* contentRoot, uint32_t disciplineFilter) {
  return lumora::Guarded(false, [&] { return lumora::Open(contentRoot, disciplineFilter); });
}

void lmClose() {
  lumora::Guarded([] { lumora::Close(); });
}
