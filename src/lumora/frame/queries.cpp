#include <lumora/frame/boundary.h>
#include <lumora/frame/library_state.h>
#include <lumora/frame/resource_reading.h>
#include <lumora/lumora.h>

namespace lumora {
namespace {

Discipline* DisciplineOf(const ContentRequest* request) {
  return request ? FindDiscipline(request->disciplineId) : nullptr;
}

ResourceIndex* ResourceInfos(const ContentRequest* request) {
  Discipline* discipline = DisciplineOf(request);
  return discipline ? discipline->resourceIndex.get() : nullptr;
}

std::string PathInfos(const ContentRequest* request) {
  Discipline* discipline = DisciplineOf(request);
  return discipline ? discipline->dataFolder : Library().commonLocal;
}

}  // namespace

bool MediaPathFor(const ContentRequest* request, MediaRef media, std::string* path) {
  Discipline* discipline = DisciplineOf(request);
  if (discipline == nullptr || path == nullptr) return false;
  if (!media.BuildPath(discipline->localRoot, request->pathKind,
                       ChosenRoot(*discipline, request->pathKind), request->selector())) {
    return false;
  }
  *path = media.path;
  return true;
}

}  // namespace lumora

lumora::ResourceIndex* lmGetResourceInfos(const lumora::ContentRequest* request) {
  return lumora::Guarded<lumora::ResourceIndex*>(nullptr,
                                                 [&] { return lumora::ResourceInfos(request); });
}

bool lmGetResource(const lumora::ContentRequest* request, uint32_t resourceId,
                   lumora::ExerciseResource* resource, bool fillMedia) {
  return lumora::Guarded(
      false, [&] { return lumora::ReadResource(request, resourceId, resource, fillMedia).ok(); });
}

bool lmGetMediaPath(const lumora::ContentRequest* request, lumora::MediaRef media,
                    std::string* path) {
  return lumora::Guarded(false, [&] { return lumora::MediaPathFor(request, media, path); });
}

std::string lmGetPathInfos(const lumora::ContentRequest* request) {
  return lumora::Guarded(std::string(), [&] { return lumora::PathInfos(request); });
}

lumora::Classification* lmGetClassification() { return &lumora::Library().classification; }
