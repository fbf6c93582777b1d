// The answer for an opened file: its validators (ETag, Last-Modified), 304 when the client's
// copy is current, one byte range (206, or 416 when it cannot be satisfied), else the whole
// file. The body is sent from the descriptor (sendfile), never read into memory.
#pragma once

#include <string>
#include <string_view>

#include "serve/file_root.h"
#include "serve/request.h"
#include "serve/response.h"

namespace lumora::serve {

Response FileAnswer(const Request& request, OpenedFile file, std::string_view content_type);

// Whether an If-None-Match header names `etag` (or is "*"); weak tags compare by their text.
bool EtagMatches(std::string_view if_none_match, std::string_view etag);

// "Sun, 06 Nov 1994 08:49:37 GMT"
std::string HttpDate(time_t seconds);

}  // namespace lumora::serve
