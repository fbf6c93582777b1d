#include <lumora/frame/library_state.h>
#include <lumora/resources/content_request.h>

namespace lumora {

LibraryState& Library() {
  static LibraryState state;
  return state;
}

Discipline* FindDiscipline(uint32_t id) { return Library().registry.Find(id); }

const std::string& ChosenRoot(const Discipline& discipline, uint32_t path_kind) {
  switch (path_kind) {
    case kPathUrl:
      return discipline.urlRoot;
    case kPathUnc:
      return discipline.uncRoot;
    default:
      return discipline.localRoot;
  }
}

}  // namespace lumora
