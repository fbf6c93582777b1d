// The description of one resource: what `lumora resource --json` prints.
//
//   {"ok", "type", "resourceId", "course", "number",      the head
//    "records", ...the type's own fields...,              when the resource was read
//    "allMedia": [every medium met, kind not 0, in order],
//    "reason"}                                           when it was not
#pragma once

#include <lumora/describe/description.h>
#include <lumora/resources/exercise_resource.h>

#include <cstdint>
#include <string>

namespace lumora {

// A resource read from open discipline `disciplineId` (whose language gives the code page of its
// narrow texts). Null for an object of no known exercise type.
Description DescribeResource(const ExerciseResource& resource, uint32_t resourceId,
                             uint32_t disciplineId);

// A resource of `type` that could not be read, and why.
Description DescribeUnreadResource(uint32_t type, uint32_t resourceId, const std::string& reason);

}  // namespace lumora
