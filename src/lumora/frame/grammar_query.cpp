#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>
#include <lumora/resources/resource_id.h>

namespace lumora {
namespace {

// Hosts take the grammar's media folder as it comes: the course and resource folders joined by
// a backslash whatever the path kind, with no separator at the end.
CGramV6* Grammar(const ContentRequest* request) {
  Discipline* discipline = request ? FindDiscipline(request->disciplineId) : nullptr;
  if (discipline == nullptr) return nullptr;
  discipline->grammar.mediaFolder = ChosenRoot(*discipline, request->pathKind) +
                                    CourseFolderName(0) + "\\" + NumberedName('r', 1002);
  return &discipline->grammar;
}

}  // namespace
}  // namespace lumora

lumora::CGramV6* lmGetGrammar(const lumora::ContentRequest* request) {
  return lumora::Guarded<lumora::CGramV6*>(nullptr, [&] { return lumora::Grammar(request); });
}
