// What a handler answers: a status, headers and a body held in memory or read from an open file.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "serve/unique_fd.h"

namespace lumora::serve {

struct Response {
  int status = 200;
  std::vector<std::pair<std::string, std::string>> headers;
  std::string body;
  // When open, the body is file_length bytes of this file from file_offset, and `body` is unused.
  UniqueFd file;
  uint64_t file_offset = 0;
  uint64_t file_length = 0;

  // Replaces a header of the same name (compared without regard to case) or adds it.
  void SetHeader(std::string_view name, std::string value);
  // The value of header `name`, or null.
  const std::string* FindHeader(std::string_view name) const;
};

Response JsonResponse(int status, const nlohmann::ordered_json& document);
// {"error": message}
Response ErrorResponse(int status, std::string_view message);
Response BytesResponse(int status, std::string bytes, std::string_view content_type);

// The headers every answer carries: no type sniffing, and for HTML a policy that lets the page
// load only what its own origin serves (and compile WebAssembly).
void AddSecurityHeaders(Response& response);

}  // namespace lumora::serve
