#include <lumora/platform/archive.h>
#include <lumora/resources/exercise_resource.h>

namespace lumora {

void ExerciseResource::Serialize(Archive& ar) {
  uint32_t magic = kResourceMagic;
  ar.Io(magic);
  if (magic != kResourceMagic)
    throw ArchiveError(ArchiveError::Kind::kBadClass, "not a resource file");
  ar.Io(resourceId);
  records.Serialize(ar);
}

void ExerciseResource::SerializeHeadAndTag(Archive& ar) {
  ExerciseResource::Serialize(ar);
  uint32_t tag = GetType();
  ar.Io(tag);
  if (tag != GetType()) throw ArchiveError(ArchiveError::Kind::kBadClass, "wrong exercise type");
}

}  // namespace lumora
