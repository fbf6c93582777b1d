#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/lumora.h>
#include <lumora/resources/resource_id.h>

namespace lumora {
namespace {

// The grammar's media folder is handed to the host as it has always been built: course and
// resource folder joined by a backslash whatever the path kind, and no separator at the end.
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
