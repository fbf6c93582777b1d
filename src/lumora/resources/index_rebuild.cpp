#include <lumora/platform/scratch_folder.h>
#include <lumora/resources/index_rebuild.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/folder_commit.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

namespace lumora {
namespace {

std::optional<std::string> ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (file.bad()) return std::nullopt;
  return bytes;
}

}  // namespace

WriteStatus RebuildIndexesInPlace(const std::string& resource_root, const std::string& data_folder,
                                  const std::vector<uint32_t>& types,
                                  std::vector<TypeRebuild>& results) {
  results.clear();
  const ScratchFolder scratch("lumora-index");
  if (scratch.path().empty()) {
    return WriteStatus::Failure("temporary folder", "cannot create a scratch folder", errno);
  }
  FolderCommit commit(data_folder);
  for (uint32_t type : types) {
    results.push_back({type, BuildTypeIndex(type, resource_root, scratch.path())});
    const std::string built = IndexFilePath(scratch.path(), type);
    std::optional<std::string> bytes = ReadBytes(built);
    if (!bytes) return WriteStatus::Failure(built, "the rebuilt index could not be made");
    commit.Add(IndexFilePath("", type), std::move(*bytes), false);
  }
  return commit.Commit();
}

}  // namespace lumora
