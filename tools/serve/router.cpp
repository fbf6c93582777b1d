#include "serve/router.h"

#include <exception>

namespace lumora::serve {
namespace {

bool IsParam(const std::string& part) {
  return part.size() > 2 && part.front() == '{' && part.back() == '}';
}

bool IsRest(const std::string& part) {
  return IsParam(part) && part.size() > 5 && part.compare(part.size() - 4, 4, "...}") == 0;
}

bool Answers(const std::string& route_method, const std::string& method) {
  return route_method == method || (route_method == "GET" && method == "HEAD");
}

}  // namespace

void Router::Add(std::string method, std::string_view pattern, Handler handler) {
  Route route{std::move(method), {}, std::move(handler)};
  size_t start = pattern.find_first_not_of('/');
  while (start != std::string_view::npos) {
    const size_t end = std::min(pattern.find('/', start), pattern.size());
    route.pattern.emplace_back(pattern.substr(start, end - start));
    start = end == pattern.size() ? std::string_view::npos : end + 1;
  }
  routes_.push_back(std::move(route));
}

bool Router::Match(const Route& route, const std::vector<std::string>& segments,
                   RouteMatch* match) {
  const std::vector<std::string>& pattern = route.pattern;
  const bool rest = !pattern.empty() && IsRest(pattern.back());
  const size_t fixed = pattern.size() - (rest ? 1 : 0);
  if (rest ? segments.size() <= fixed : segments.size() != fixed) return false;
  RouteMatch found;
  for (size_t i = 0; i < fixed; ++i) {
    if (IsParam(pattern[i])) {
      found.params[pattern[i].substr(1, pattern[i].size() - 2)] = segments[i];
    } else if (pattern[i] != segments[i]) {
      return false;
    }
  }
  if (rest) found.rest.assign(segments.begin() + fixed, segments.end());
  *match = std::move(found);
  return true;
}

bool Router::Owns(const std::string& segment) const {
  for (const Route& route : routes_) {
    if (!route.pattern.empty() && !IsParam(route.pattern.front()) &&
        route.pattern.front() == segment) {
      return true;
    }
  }
  return false;
}

Response Router::Call(const Handler& handler, const Request& request,
                      const RouteMatch& match) const {
  try {
    return handler(request, match);
  } catch (const std::exception& failure) {
    return ErrorResponse(500, std::string("internal error: ") + failure.what());
  } catch (...) {
    return ErrorResponse(500, "internal error");
  }
}

Response Router::Dispatch(const Request& request) const {
  std::string allowed;
  for (const Route& route : routes_) {
    RouteMatch match;
    if (!Match(route, request.segments, &match)) continue;
    if (Answers(route.method, request.method)) return Call(route.handler, request, match);
    if (allowed.find(route.method) == std::string::npos) {
      allowed += (allowed.empty() ? "" : ", ") + route.method;
      if (route.method == "GET") allowed += ", HEAD";
    }
  }
  if (!allowed.empty()) {
    Response response = ErrorResponse(405, "method " + request.method + " is not allowed here");
    response.SetHeader("Allow", allowed);
    return response;
  }
  const bool owned = !request.segments.empty() && Owns(request.segments.front());
  const bool names_file =
      !request.segments.empty() && request.segments.back().find('.') != std::string::npos;
  if (fallback_ && !owned && !names_file && (request.method == "GET" || request.method == "HEAD")) {
    return Call(fallback_, request, RouteMatch{});
  }
  return ErrorResponse(404, "no such address: " + request.raw_path);
}

}  // namespace lumora::serve
