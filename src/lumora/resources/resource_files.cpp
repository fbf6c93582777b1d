#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

namespace lumora {

std::string ResourceFilePath(const std::string& root, uint32_t type, uint32_t resource_id) {
  return root + CourseFolderName(CourseOf(resource_id)) + kPathSeparator + NumberedName('r', type) +
         kPathSeparator + NumberedName('r', NumberOf(resource_id)) + ".ars";
}

LoadResult LoadResource(const std::string& local_root, const std::string& chosen_root,
                        const ContentRequest& request, uint32_t resource_id,
                        ExerciseResource& target, bool fill_media) {
  std::string path = ResourceFilePath(local_root, target.GetType(), resource_id);
  const std::string twin = ChangeExtension(path, "arh");
  if (FileListed(twin)) path = twin;
  LoadResult loaded = ReadArchiveFile(path, target);
  if (loaded.ok() && fill_media) target.ResolveMedia(request, local_root, chosen_root);
  return loaded;
}

bool ReferencedFileCheck(const std::string& root, uint32_t resource_id, std::string& message) {
  message.clear();
  const std::string path = ResourceFilePath(root, 1005, resource_id);
  if (!FileListed(path)) message = "\t\tFile not found: " + path + "\n!";
  return message.empty();
}

}  // namespace lumora
