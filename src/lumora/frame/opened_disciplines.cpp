#include <lumora/frame/library_state.h>
#include <lumora/frame/opened_disciplines.h>

namespace lumora {
namespace {

OpenedDiscipline Described(uint32_t id, const Discipline& discipline) {
  return {id,
          discipline.info.Param,
          discipline.localRoot,
          discipline.uncRoot,
          discipline.urlRoot,
          discipline.dataFolder};
}

}  // namespace

std::vector<OpenedDiscipline> ListOpenedDisciplines() {
  const KeyedTable<Discipline>& registry = Library().registry;
  std::vector<OpenedDiscipline> opened;
  opened.reserve(registry.size());
  for (uint32_t i = 0; i < registry.size(); ++i) {
    opened.push_back(Described(registry.KeyAt(i), *registry.ObjectAt(i)));
  }
  return opened;
}

bool FindOpenedDiscipline(uint32_t id, OpenedDiscipline* found) {
  const Discipline* discipline = FindDiscipline(id);
  if (discipline == nullptr) return false;
  *found = Described(id, *discipline);
  return true;
}

}  // namespace lumora
