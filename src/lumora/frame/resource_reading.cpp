#include <lumora/frame/library_state.h>
#include <lumora/frame/resource_reading.h>
#include <lumora/maintenance.h>
#include <lumora/resources/resource_files.h>

namespace lumora {

LoadResult ReadResource(const ContentRequest* request, uint32_t resourceId,
                        ExerciseResource* resource, bool fillMedia) {
  Discipline* discipline = request ? FindDiscipline(request->disciplineId) : nullptr;
  if (discipline == nullptr) return LoadResult({"", std::nullopt, "no open discipline"});
  if (resource == nullptr) return LoadResult({"", std::nullopt, "no resource object"});
  return LoadResource(discipline->localRoot, ChosenRoot(*discipline, request->pathKind), *request,
                      resourceId, *resource, fillMedia);
}

}  // namespace lumora
