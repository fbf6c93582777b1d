#include <lumora/content/content_answers.h>
#include <lumora/frame/opened_disciplines.h>

#include <utility>

namespace lumora {

Status Failure(StatusCode code, std::string reason) {
  Status status;
  status.code = code;
  status.reason = std::move(reason);
  return status;
}

Status NotFound(std::string reason) { return Failure(StatusCode::kNotFound, std::move(reason)); }

Status Unreadable(const std::string& root, const LoadFailure& failure) {
  Status status;
  status.code = StatusCode::kUnreadable;
  status.reason = failure.what;
  status.file = failure.file;
  status.byte = failure.offset;
  const std::string folder = root.empty() || root.back() == '/' ? root : root + "/";
  if (!folder.empty() && status.file.compare(0, folder.size(), folder) == 0) {
    status.file.erase(0, folder.size());
  }
  return status;
}

Answer Failed(Status status) { return {std::move(status), nullptr}; }

Answer Found(Description document) { return {Status(), std::move(document)}; }

std::optional<ContentRequest> RequestFor(uint32_t id, uint32_t pathKind, uint8_t order) {
  OpenedDiscipline discipline;
  if (!FindOpenedDiscipline(id, &discipline)) return std::nullopt;
  ContentRequest request;
  request.disciplineId = id;
  request.pathKind = pathKind;
  request.mediaOrder = order;
  return request;
}

Status NoDiscipline(uint32_t id) {
  return NotFound("no open discipline with identifier " + std::to_string(id));
}

Status QualityFolders(const std::vector<uint8_t>& quality, ByteArray* folders) {
  for (uint8_t folder : quality) {
    if (folder < 1 || folder > 3) {
      return Failure(StatusCode::kInvalidArgument,
                     "quality folders are 1, 2 or 3: " + std::to_string(folder));
    }
    folders->Add(folder);
  }
  if (quality.empty()) {
    for (uint8_t folder = 1; folder <= 3; ++folder) folders->Add(folder);
  }
  return Status();
}

}  // namespace lumora
