// Where resource files lie and how one is read for a request.
#pragma once

#include <lumora/platform/load_result.h>
#include <lumora/resources/content_request.h>

#include <cstdint>
#include <string>

namespace lumora {

class ExerciseResource;

// root + "C%04d/r%07d/r%07d.ars" with the course of `resource_id`, `type` and its number.
std::string ResourceFilePath(const std::string& root, uint32_t type, uint32_t resource_id);

// Reads the resource file of `target`'s type below local_root into `target`, preferring an
// ".arh" twin that is a regular file; with fill_media, then resolves its media against
// local_root with paths below chosen_root. Fails, saying why, when the file is missing or
// malformed.
LoadResult LoadResource(const std::string& local_root, const std::string& chosen_root,
                        const ContentRequest& request, uint32_t resource_id,
                        ExerciseResource& target, bool fill_media);

// Empties `message`; when no regular file lies at the type-1005 resource file of
// `resource_id` below `root`, sets it to "\t\tFile not found: <path>\n!". True when the
// message stayed empty.
bool ReferencedFileCheck(const std::string& root, uint32_t resource_id, std::string& message);

}  // namespace lumora
