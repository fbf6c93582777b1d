// What the content face's answers share: the statuses it gives and the request for an open
// discipline. The caller holds the library lock.
#pragma once

#include <lumora/content.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace lumora {

struct OpenedDiscipline;

Status Failure(StatusCode code, std::string reason);
Status NotFound(std::string reason);
// A load failure, its file relative to `root` when it lies below it.
Status Unreadable(const std::string& root, const LoadFailure& failure);
Answer Failed(Status status);
Answer Found(Description document);

// A request for open discipline `id`; none when no open discipline has that identifier.
std::optional<ContentRequest> RequestFor(uint32_t id, uint32_t pathKind = kPathLocal,
                                         uint8_t order = 1);
Status NoDiscipline(uint32_t id);

// A registered discipline as the face gives it, with the types its index lists.
DisciplineSummary SummaryOf(const OpenedDiscipline& discipline);
// The media quality folders of a check or export request: each 1, 2 or 3, all three when none
// is given; kInvalidArgument for another number.
Status QualityFolders(const std::vector<uint8_t>& quality, ByteArray* folders);
// Held while a check runs: one at a time. Taken before the library lock.
std::mutex& CheckMutex();

}  // namespace lumora
