#include <lumora/frame/library_state.h>
#include <lumora/frame/opened_lexicon.h>

namespace lumora {

const CGloV6* OpenedGlossary(uint32_t id) {
  const Discipline* discipline = FindDiscipline(id);
  return discipline != nullptr ? &discipline->glossary : nullptr;
}

const CGramV6* OpenedGrammar(uint32_t id) {
  const Discipline* discipline = FindDiscipline(id);
  return discipline != nullptr ? &discipline->grammar : nullptr;
}

}  // namespace lumora
