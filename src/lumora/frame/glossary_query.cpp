#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>
#include <lumora/resources/media_ref.h>

namespace lumora {
namespace {

// The sound pattern follows the root the request's path kind selects; local requests get none,
// so they are given no sound paths.
CGloV6* Glossary(const ContentRequest* request) {
  Discipline* discipline = request ? FindDiscipline(request->disciplineId) : nullptr;
  if (discipline == nullptr) return nullptr;
  discipline->glossary.mediaTemplate =
      GlossaryMediaPattern(request->pathKind, ChosenRoot(*discipline, request->pathKind));
  return &discipline->glossary;
}

}  // namespace
}  // namespace lumora

lumora::CGloV6* lmGetGlossary(const lumora::ContentRequest* request) {
  return lumora::Guarded<lumora::CGloV6*>(nullptr, [&] { return lumora::Glossary(request); });
}
