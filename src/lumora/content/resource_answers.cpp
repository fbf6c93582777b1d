// A discipline's resources through the content face: index, resource ids, resources, media.
#include <lumora/content.h>
#include <lumora/content/content_answers.h>
#include <lumora/describe/index_description.h>
#include <lumora/describe/resource_description.h>
#include <lumora/frame/library_lock.h>
#include <lumora/frame/opened_disciplines.h>
#include <lumora/frame/resource_reading.h>
#include <lumora/resources/indexed_numbers.h>
#include <lumora/resources/resource_id.h>
#include <lumora/resources/resource_scan.h>
#include <lumora/resources/type_catalog.h>
#include <lumora/support/listed_files.h>

#include <deque>
#include <map>
#include <mutex>

namespace lumora {
namespace {

// An index lists resource numbers without their course. The course of each is the course folder
// that holds its file; a number listed twice (two courses hold it, and the rebuild lists both)
// takes the courses in folder order. A number no folder holds keeps course 0, so that reading it
// says which file is missing.
std::vector<uint32_t> IdsOfNumbers(const std::string& localRoot, uint32_t type,
                                   const std::vector<uint32_t>& numbers) {
  std::map<uint32_t, std::deque<uint32_t>> courses;
  for (const ScannedResource& file : ScanResourceFiles(localRoot, type, {true})) {
    if (!file.course) continue;
    std::deque<uint32_t>& held = courses[file.number & kResourceNumberMask];
    // A file and its twin name one resource.
    if (held.empty() || held.back() != *file.course) held.push_back(*file.course);
  }
  std::vector<uint32_t> ids;
  ids.reserve(numbers.size());
  for (uint32_t number : numbers) {
    std::deque<uint32_t>& held = courses[number & kResourceNumberMask];
    uint32_t course = 0;
    if (!held.empty()) {
      course = held.front();
      if (held.size() > 1) held.pop_front();
    }
    ids.push_back(MakeResourceId(course, number & kResourceNumberMask));
  }
  return ids;
}

}  // namespace

std::vector<uint32_t> ContentRoot::ResourceIds(uint32_t discipline, uint32_t type) const {
  std::shared_lock lock(LibraryMutex());
  const std::optional<ContentRequest> request = RequestFor(discipline);
  OpenedDiscipline opened;
  if (!open_ || !request || !FindOpenedDiscipline(discipline, &opened)) return {};
  const ResourceIndex* index = lmGetResourceInfos(&*request);
  const TypeIndex* typeIndex = index != nullptr ? index->FindType(type) : nullptr;
  if (typeIndex == nullptr) return {};
  const std::optional<IndexedNumbers> numbers = NumbersOf(*typeIndex);
  if (!numbers) return {};
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
    Status status = Unreadable(root_, read.failure());
    // A resource whose file is not there is absent, not damaged.
    if (!read.failure().offset && !FileListed(read.failure().file)) {
      status.code = StatusCode::kNotFound;
    }
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
