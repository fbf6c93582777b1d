// What the content face's answers share: the statuses it gives and the request for an open
// discipline. The caller holds the library lock.
#pragma once

#include <lumora/content.h>
#include <lumora/platform/load_result.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumora {

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

// The ids of the resources of `type` whose numbers an index lists, in the list's order: each
// number once for every course folder below `localRoot` that holds its file.
std::vector<uint32_t> IdsOfNumbers(const std::string& localRoot, uint32_t type,
                                   const std::vector<uint32_t>& numbers);

}  // namespace lumora
