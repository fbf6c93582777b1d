#include "serve/media_types.h"

#include <strings.h>

#include <array>
#include <utility>

namespace lumora::serve {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 18> kTypes{{
    {"swf", "application/x-shockwave-flash"},
    {"mpg", "video/mpeg"},
    {"mpeg", "video/mpeg"},
    {"avi", "video/x-msvideo"},
    {"wav", "audio/wav"},
    {"mp3", "audio/mpeg"},
    {"png", "image/png"},
    {"jpg", "image/jpeg"},
    {"jpeg", "image/jpeg"},
    {"gif", "image/gif"},
    {"svg", "image/svg+xml"},
    {"html", "text/html; charset=utf-8"},
    {"htm", "text/html; charset=utf-8"},
    {"js", "text/javascript"},
    {"mjs", "text/javascript"},
    {"css", "text/css"},
    {"wasm", "application/wasm"},
    {"json", "application/json"},
}};

}  // namespace

std::string_view ContentTypeFor(std::string_view file_name) {
  const size_t dot = file_name.rfind('.');
  if (dot != std::string_view::npos) {
    const std::string_view extension = file_name.substr(dot + 1);
    for (const auto& [known, type] : kTypes) {
      if (known.size() == extension.size() &&
          ::strncasecmp(known.data(), extension.data(), known.size()) == 0) {
        return type;
      }
    }
  }
  return "application/octet-stream";
}

}  // namespace lumora::serve
