// Chooses the handler of a request by method and path. Patterns are paths whose segments are
// literal, a named parameter "{id}" (one segment) or, last, "{name...}" (one or more segments).
// A GET route answers HEAD too; the engine leaves out the body.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "serve/request.h"
#include "serve/response.h"

namespace lumora::serve {

struct RouteMatch {
  std::map<std::string, std::string> params;
  // The segments taken by a trailing "{name...}".
  std::vector<std::string> rest;

  const std::string& operator[](const std::string& name) const { return params.at(name); }
};

using Handler = std::function<Response(const Request&, const RouteMatch&)>;

class Router {
 public:
  void Add(std::string method, std::string_view pattern, Handler handler);
  void Get(std::string_view pattern, Handler handler) { Add("GET", pattern, std::move(handler)); }

  // Answers the GET and HEAD requests that no route takes, except below the first segment of a
  // route ("/api/...", "/media/...") and for a path that ends in a file name ("/favicon.ico"),
  // where an unknown path stays a 404: the page answers its own paths ("/d/1/type/40") so, and
  // a browser asking for a file it guessed learns that there is none. Without one, they answer
  // 404.
  void SetFallback(Handler handler) { fallback_ = std::move(handler); }

  // The handler's answer; 404 for a path no route takes, 405 (with Allow) for a path taken only
  // for other methods, 500 when the handler throws.
  Response Dispatch(const Request& request) const;

 private:
  struct Route {
    std::string method;
    std::vector<std::string> pattern;
    Handler handler;
  };
  static bool Match(const Route& route, const std::vector<std::string>& segments,
                    RouteMatch* match);
  // Whether a route's first segment is the literal `segment`.
  bool Owns(const std::string& segment) const;
  Response Call(const Handler& handler, const Request& request, const RouteMatch& match) const;

  std::vector<Route> routes_;
  Handler fallback_;
};

}  // namespace lumora::serve
