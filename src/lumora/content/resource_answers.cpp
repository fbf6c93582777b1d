// A discipline's resources through the content face: index, resource ids, resources, media.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/describe/index_description.h>
#include <lumora/describe/resource_description.h>
#include <lumora/frame/library_lock.h>
#include <lumora/frame/opened_disciplines.h>
#include <lumora/frame/resource_reading.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/type_catalog.h>

#include <mutex>

namespace lumora {

std::vector<uint32_t> ContentRoot::ResourceIds(uint32_t discipline, uint32_t type) const {
  std::shared_lock lock(LibraryMutex());
  const std::optional<ContentRequest> request = RequestFor(discipline);
  if (!open_ || !request) return {};
  const ResourceIndex* index = lmGetResourceInfos(&*request);
  const TypeIndex* typeIndex = index != nullptr ? index->FindType(type) : nullptr;
  if (typeIndex == nullptr) return {};
  const std::optional<IndexedNumbers> numbers = NumbersOf(*typeIndex);
  OpenedDiscipline opened;
  if (!numbers || !FindOpenedDiscipline(discipline, &opened)) return {};
  return IdsOfNumbers(opened.localRoot, type, numbers->numbers);
}

Answer ContentRoot::Resource(uint32_t discipline, uint32_t type, uint32_t id,
                             const ResourceOptions& options) const {
  std::shared_lock lock(LibraryMutex());
  std::unique_ptr<ExerciseResource> resource = NewResource(type);
  if (!resource) return Failed(NotFound("no exercise type " + std::to_string(type)));
  const std::optional<ContentRequest> request =
      RequestFor(discipline, options.pathKind, options.order);
  if (!open_ || !request) return Failed(NoDiscipline(discipline));
  const LoadResult read = ReadResource(&*request, id, resource.get(), options.media);
  if (!read.ok()) {
    const Status status = Unreadable(root_, read.failure());
    return {status, DescribeUnreadResource(type, id, status.ToString())};
  }
  return Found(DescribeResource(*resource, id, discipline));
}

std::optional<std::string> ContentRoot::MediaPath(uint32_t discipline, const MediaRef& media,
                                                  uint32_t pathKind, uint8_t order) const {
  std::shared_lock lock(LibraryMutex());
  const std::optional<ContentRequest> request = RequestFor(discipline, pathKind, order);
  std::string path;
  if (!open_ || !request || !MediaPathFor(&*request, media, &path)) return std::nullopt;
  return path;
}

Answer ContentRoot::Index(uint32_t discipline, std::optional<uint32_t> type) const {
  std::shared_lock lock(LibraryMutex());
  const std::optional<ContentRequest> request = RequestFor(discipline, kPathUrl);
  if (!open_ || !request) return Failed(NoDiscipline(discipline));
  const ResourceIndex* index = lmGetResourceInfos(&*request);
  if (index == nullptr) return Failed(NotFound("discipline has no resource index"));
  Description described = DescribeIndex(*index, *request, type);
  if (type && described["types"].empty()) {
    return {NotFound("discipline " + std::to_string(discipline) + " has no index of type " +
                     std::to_string(*type)),
            std::move(described)};
  }
  return Found(std::move(described));
}

}  // namespace lumora
