#include <lumora/check/media_verification.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/folder_entries.h>
#include <lumora/support/listed_files.h>
#include <lumora/support/paths.h>

#include <algorithm>
#include <cctype>

namespace lumora {
namespace {

// The courses below a local root, from the names of its "C%04d" folders, in ascending order.
std::vector<uint32_t> CoursesBelow(const std::string& local_root) {
  std::vector<uint32_t> courses;
  const auto entries = ListFolder(local_root);
  if (!entries) return courses;
  for (const FolderEntry& entry : *entries) {
    const std::string& name = entry.name;
    if (!entry.isFolder || name.size() != 5 || name[0] != 'C' ||
        !std::all_of(name.begin() + 1, name.end(),
                     [](char c) { return std::isdigit(static_cast<unsigned char>(c)); })) {
      continue;
    }
    courses.push_back(static_cast<uint32_t>(std::stoul(name.substr(1))));
  }
  std::sort(courses.begin(), courses.end());
  return courses;
}

std::string FileOf(const std::string& local_root, uint32_t type, uint32_t resource_id) {
  const std::string path = ResourceFilePath(local_root, type, resource_id);
  const std::string twin = ChangeExtension(path, "arh");
  if (FileListed(twin)) return twin;
  return FileListed(path) ? path : std::string();
}

MediaVerification Verify(const std::string& local_root, const ByteArray& quality, uint32_t type,
                         uint32_t resource_id, const std::string& path) {
  MediaVerification result{type, resource_id, path, false, {}};
  std::unique_ptr<ExerciseResource> resource = NewResource(type);
  result.read =
      LoadResource(local_root, local_root, ContentRequest{}, resource_id, *resource, false).ok();
  if (result.read) resource->VerifyMedia(local_root, quality, result.report, resource_id);
  return result;
}

}  // namespace

std::vector<MediaVerification> VerifyIndexedMedia(const std::string& localRoot,
                                                  const ResourceIndex& index,
                                                  const ByteArray& qualityFolders,
                                                  std::optional<uint32_t> onlyType) {
  // Nothing changes in the tree meanwhile: each folder is listed once for every medium and
  // file looked up in it.
  const ListedFiles listed;
  const std::vector<uint32_t> courses = CoursesBelow(localRoot);
  std::vector<MediaVerification> results;
  for (uint32_t type : index.types()) {
    if (onlyType && *onlyType != type) continue;
    const TypeIndex* type_index = index.FindType(type);
    const auto indexed = type_index ? NumbersOf(*type_index) : std::nullopt;
    if (!indexed) continue;
    std::vector<uint32_t> numbers = indexed->numbers;
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    for (uint32_t number : numbers) {
      for (uint32_t course : courses) {
        const uint32_t id = MakeResourceId(course, number);
        const std::string path = FileOf(localRoot, type, id);
        if (!path.empty()) results.push_back(Verify(localRoot, qualityFolders, type, id, path));
      }
    }
  }
  return results;
}

}  // namespace lumora
