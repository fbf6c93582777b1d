#include "serve/response.h"

#include <strings.h>

namespace lumora::serve {
namespace {

// The page's Flash player (Ruffle 0.6.0, pinned by web/package-lock.json) sets two inline styles
// of its own; they are allowed by their hashes, so no other inline style applies.
constexpr std::string_view kHtmlPolicy =
    "default-src 'self'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self' 'unsafe-hashes' "
    "'sha256-ZIjaRjeEPeLGAC12l3LyXix5OaO8O47vn20DODh/FcE=' "
    "'sha256-47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU='; object-src 'none'; base-uri 'self'; "
    "form-action 'none'; frame-ancestors 'self'";

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && ::strncasecmp(a.data(), b.data(), a.size()) == 0;
}

}  // namespace

void Response::SetHeader(std::string_view name, std::string value) {
  for (auto& [key, old] : headers) {
    if (SameName(key, name)) {
      old = std::move(value);
      return;
    }
  }
  headers.emplace_back(std::string(name), std::move(value));
}

const std::string* Response::FindHeader(std::string_view name) const {
  for (const auto& [key, value] : headers) {
    if (SameName(key, name)) return &value;
  }
  return nullptr;
}

Response JsonResponse(int status, const nlohmann::ordered_json& document) {
  // Texts the library could not make valid UTF-8 are replaced rather than refused: the answer
  // must still be a JSON document.
  return BytesResponse(status,
                       document.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace),
                       "application/json");
}

Response ErrorResponse(int status, std::string_view message) {
  return JsonResponse(status, {{"error", message}});
}

Response BytesResponse(int status, std::string bytes, std::string_view content_type) {
  Response response;
  response.status = status;
  response.body = std::move(bytes);
  response.SetHeader("Content-Type", std::string(content_type));
  return response;
}

void AddSecurityHeaders(Response& response) {
  response.SetHeader("X-Content-Type-Options", "nosniff");
  const std::string* type = response.FindHeader("Content-Type");
  if (type && type->rfind("text/html", 0) == 0) {
    response.SetHeader("Content-Security-Policy", std::string(kHtmlPolicy));
  }
}

}  // namespace lumora::serve
