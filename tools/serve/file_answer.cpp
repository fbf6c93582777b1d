#include "serve/file_answer.h"

#include <cstdio>
#include <ctime>

#include "serve/byte_range.h"

namespace lumora::serve {
namespace {

std::string_view Trim(std::string_view text) {
  while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

std::string_view Opaque(std::string_view tag) {
  tag = Trim(tag);
  if (tag.substr(0, 2) == "W/") tag.remove_prefix(2);
  return tag;
}

// Size and modification time to the nanosecond: a file rewritten in place gets a new tag.
std::string EtagOf(const OpenedFile& file) {
  char tag[64];
  std::snprintf(tag, sizeof tag, "\"%llx-%llx-%lx\"", static_cast<unsigned long long>(file.size),
                static_cast<unsigned long long>(file.modified.tv_sec),
                static_cast<unsigned long>(file.modified.tv_nsec));
  return tag;
}

std::string ContentRange(uint64_t first, uint64_t length, uint64_t size) {
  return "bytes " + std::to_string(first) + "-" + std::to_string(first + length - 1) + "/" +
         std::to_string(size);
}

}  // namespace

bool EtagMatches(std::string_view if_none_match, std::string_view etag) {
  size_t start = 0;
  while (start <= if_none_match.size()) {
    const size_t end = std::min(if_none_match.find(',', start), if_none_match.size());
    const std::string_view tag = Opaque(if_none_match.substr(start, end - start));
    if (tag == "*" || (!tag.empty() && tag == Opaque(etag))) return true;
    start = end + 1;
  }
  return false;
}

std::string HttpDate(time_t seconds) {
  static constexpr const char* kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  static constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  std::tm utc{};
  ::gmtime_r(&seconds, &utc);
  char text[40];
  std::snprintf(text, sizeof text, "%s, %02d %s %04d %02d:%02d:%02d GMT", kDays[utc.tm_wday],
                utc.tm_mday, kMonths[utc.tm_mon], utc.tm_year + 1900, utc.tm_hour, utc.tm_min,
                utc.tm_sec);
  return text;
}

Response FileAnswer(const Request& request, OpenedFile file, std::string_view content_type) {
  Response response;
  const std::string etag = EtagOf(file);
  response.SetHeader("ETag", etag);
  response.SetHeader("Last-Modified", HttpDate(file.modified.tv_sec));
  response.SetHeader("Accept-Ranges", "bytes");
  if (EtagMatches(request.Header("if-none-match"), etag)) {
    response.status = 304;
    return response;
  }
  response.SetHeader("Content-Type", std::string(content_type));
  RangeAnswer range;
  const std::string& if_range = request.Header("if-range");
  // A range is for the copy the client holds: when it names another version, send it all.
  if (if_range.empty() || Opaque(if_range) == Opaque(etag)) {
    range = ResolveRange(request.Header("range"), file.size);
  }
  if (range.kind == RangeAnswer::kUnsatisfiable) {
    Response refused = ErrorResponse(416, "range not satisfiable");
    refused.SetHeader("Content-Range", "bytes */" + std::to_string(file.size));
    return refused;
  }
  if (range.kind == RangeAnswer::kPart) {
    response.status = 206;
    response.SetHeader("Content-Range", ContentRange(range.first, range.length, file.size));
    response.file_offset = range.first;
    response.file_length = range.length;
  } else {
    response.file_length = file.size;
  }
  if (response.file_length > 0) response.file = std::move(file.fd);
  return response;
}

}  // namespace lumora::serve
