// The description of a discipline's resource index: what `lumora index --json` prints.
//
//   {"types": [{"type", ...the fields of the type's index form...}, ...]}
//
// in the order the index files were loaded. Grouped types give "sorted" and "groups"; type 2000
// "entries" with titles and a picture; type 1005 "entries" with flags and values; type 1006
// "numbers"; the types whose index holds tables of their own give their number only.
#pragma once

#include <lumora/describe/description.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/resource_index.h>

#include <cstdint>
#include <optional>

namespace lumora {

// The index of the discipline of `request`, or only its type `onlyType`. The pictures of type
// 2000 are given the paths that `request` asks for.
Description DescribeIndex(const ResourceIndex& index, const ContentRequest& request,
                          std::optional<uint32_t> onlyType = std::nullopt);

}  // namespace lumora
