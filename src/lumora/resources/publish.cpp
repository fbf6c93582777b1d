#include <lumora/platform/typed_array.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/media_path_clearing.h>
#include <lumora/resources/publish.h>
#include <lumora/resources/resource_files.h>
#include <lumora/resources/resource_index.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/content_ini.h>
#include <lumora/support/paths.h>
#include <lumora/support/profile_file.h>

namespace lumora {
namespace {

template <typename Resource>
PublishingClass ClassOf() {
  return {Resource::kType, [] { return std::make_unique<Resource>(); },
          [](ExerciseResource& resource) { ClearMediaPaths(static_cast<Resource&>(resource)); }};
}

// Media are resolved as a network share would serve them, from quality folder 3 first. The
// first field marks the request as the publishing pass's own.
ContentRequest PublishingRequest(uint32_t discipline_id) {
  ContentRequest request;
  request.host = 17;
  request.disciplineId = discipline_id;
  request.mediaOrder = 3;
  request.pathKind = kPathUnc;
  return request;
}

// Every resource number that the type's index file in data_folder lists, group by group.
// False when the file cannot be read as the type's index.
bool ReadResourceNumbers(uint32_t type, const std::string& data_folder, DWordArray& numbers) {
  std::unique_ptr<TypeIndex> index = NewTypeIndex(type);
  auto* grouped = dynamic_cast<GroupsIndex*>(index.get());
  if (grouped == nullptr || !grouped->Load(IndexFilePath(data_folder, type))) return false;
  grouped->groups.GetResourceNumbers(0, numbers);
  return true;
}

void PublishResource(const PublishingClass& publishing, const std::string& path,
                     const ContentRequest& request, const std::string& local_root,
                     bool clear_paths) {
  std::unique_ptr<ExerciseResource> resource = publishing.make();
  if (!LoadArchiveFile(path, false, *resource)) return;
  resource->ResolveMedia(request, local_root, local_root);
  if (clear_paths) publishing.clearMediaPaths(*resource);
  LoadArchiveFile(ChangeExtension(path, clear_paths ? "arh" : "aro"), true, *resource);
}

// Publishes the resources of the current section's discipline. Its resources lie below its own
// Local root, taken as written in the section (no separator is added, unlike when a content
// root is opened), its index below the common one. False when the index cannot be read.
bool PublishDiscipline(const PublishingClass& publishing, ProfileFile& ini, const std::string& root,
                       const std::string& common_local, bool clear_paths) {
  const uint32_t id = ReadDisciplineId(ini);
  const std::string folder = DisciplineFolder(id);
  const std::string local_root = ValueOr(ini.GetString("Local"), root + folder);
  // The pass writes inside the tree it is given and nowhere else: a discipline whose files lie
  // outside it belongs to another tree.
  if (!PathIsWithin(local_root, root)) return true;
  DWordArray numbers;
  if (!ReadResourceNumbers(publishing.type, common_local + folder, numbers)) return false;
  const ContentRequest request = PublishingRequest(id);
  for (uint32_t i = 0; i < numbers.size(); ++i) {
    const std::string path = ResourceFilePath(local_root, publishing.type, numbers[i]);
    PublishResource(publishing, path, request, local_root, clear_paths);
  }
  return true;
}

}  // namespace

std::optional<PublishingClass> PublishingClassOf(uint32_t type) {
  switch (type) {
    case Type40Resource::kType:
      return ClassOf<Type40Resource>();
    case Type5Resource::kType:
      return ClassOf<Type5Resource>();
    case Type10Resource::kType:
      return ClassOf<Type10Resource>();
    case Type28Resource::kType:
      return ClassOf<Type28Resource>();
    default:
      return std::nullopt;
  }
}

void PublishResources(uint32_t type, const std::string& root, bool clear_paths) {
  if (const auto publishing = PublishingClassOf(type)) {
    PublishResources(*publishing, root, clear_paths);
  }
}

void PublishResources(const PublishingClass& publishing, const std::string& root,
                      bool clear_paths) {
  ProfileFile ini;
  if (!ini.Load(ContentIniPath(root))) return;
  const std::string common_local = ReadCommonLocal(ini, root);
  for (uint32_t n = 1; ini.FindSection(DisciplineSectionName(n)); ++n) {
    if (!PublishDiscipline(publishing, ini, root, common_local, clear_paths)) return;
  }
}

}  // namespace lumora
