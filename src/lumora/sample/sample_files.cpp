#include <lumora/sample/sample_files.h>

#include <lumora/platform/atomic_write.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/resource_files.h>
#include <lumora/support/paths.h>

namespace lumora::sample {
namespace {

bool CreateFolderOf(const std::string& path, std::string* error) {
  if (CreateFolderPath(FolderOf(path))) return true;
  *error = "cannot create folder " + FolderOf(path);
  return false;
}

}  // namespace

bool WriteBytesFile(const std::string& path, const std::string& bytes, std::string* error) {
  if (!CreateFolderOf(path, error)) return false;
  const WriteStatus written = WriteFileAtomically(path, bytes);
  if (written.ok()) return true;
  *error = written.ToString();
  return false;
}

bool StoreObjectFile(const std::string& path, Object& object, std::string* error) {
  if (!CreateFolderOf(path, error)) return false;
  ClearWriteFailure();
  if (LoadArchiveFile(path, true, object)) return true;
  *error = LastWriteFailure().ok() ? "cannot write " + path : LastWriteFailure().ToString();
  return false;
}

bool StoreResourceFile(const std::string& root, uint32_t id, ExerciseResource& resource,
                       std::string* error) {
  resource.resourceId = id;
  return StoreObjectFile(ResourceFilePath(root, resource.GetType(), id), resource, error);
}

}  // namespace lumora::sample
