// What the last open registered, for programs that open with lmOpen.
#include <lumora/content/content_answers.h>
#include <lumora/frame/library_lock.h>
#include <lumora/frame/opened_disciplines.h>
#include <lumora/maintenance.h>

#include <mutex>
#include <shared_mutex>

namespace lumora {
namespace {

std::vector<uint32_t> IndexedTypes(uint32_t id) {
  std::vector<uint32_t> types;
  const std::optional<ContentRequest> request = RequestFor(id);
  if (!request) return types;
  if (const ResourceIndex* index = lmGetResourceInfos(&*request)) {
    for (uint32_t type : index->types()) types.push_back(type);
  }
  return types;
}

}  // namespace

DisciplineSummary SummaryOf(const OpenedDiscipline& d) {
  DisciplineSummary summary;
  summary.id = d.id;
  summary.language = static_cast<uint32_t>(d.param) & 0xFF;
  summary.types = IndexedTypes(d.id);
  summary.localRoot = d.localRoot;
  summary.urlRoot = d.urlRoot;
  summary.uncRoot = d.uncRoot;
  summary.dataFolder = d.dataFolder;
  return summary;
}

std::vector<DisciplineSummary> OpenedDisciplines() {
  std::shared_lock lock(LibraryMutex());
  std::vector<DisciplineSummary> disciplines;
  for (const OpenedDiscipline& d : ListOpenedDisciplines()) disciplines.push_back(SummaryOf(d));
  return disciplines;
}

std::optional<DisciplineSummary> OpenedDisciplineById(uint32_t id) {
  std::shared_lock lock(LibraryMutex());
  OpenedDiscipline found;
  if (!FindOpenedDiscipline(id, &found)) return std::nullopt;
  return SummaryOf(found);
}

}  // namespace lumora
