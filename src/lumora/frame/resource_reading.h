// Reading one resource of an open discipline, saying why it failed: what lmGetResource answers
// with a bool, for programs that show the reason (the file, the byte, what was wrong).
#pragma once

#include <lumora/platform/load_result.h>
#include <lumora/resources/content_request.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>
#include <string>

namespace lumora {

// lmGetResource's read. A request for no open discipline, or no resource object, fails without
// a file.
LoadResult ReadResource(const ContentRequest* request, uint32_t resourceId,
                        ExerciseResource* resource, bool fillMedia);

// lmGetMediaPath's answer: the path of `media` in the request's discipline, written to *path.
bool MediaPathFor(const ContentRequest* request, MediaRef media, std::string* path);

}  // namespace lumora
