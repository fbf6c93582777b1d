// The HTTP engine: a libmicrohttpd daemon that hands every request to a Router.
//
// A fixed pool of threads, each with its own event loop, serves the connections: a request is
// answered at once (documents are built in memory, files go out with sendfile), so a few
// threads keep up with many connections, and thousands of connections opened and dropped cost
// no thread each.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "serve/request.h"
#include "serve/router.h"

struct MHD_Connection;
struct MHD_Daemon;

namespace lumora::serve {

struct ServerOptions {
  // An IPv4 or IPv6 address in numeric form.
  std::string address = "127.0.0.1";
  // 0 lets the system choose a free port; port() then tells which.
  uint16_t port = 8470;
  // 0 means one per processor.
  unsigned threads = 0;
  // Told of every answered request, from the serving threads.
  std::function<void(const Request&, int status)> on_answer;
};

class HttpServer {
 public:
  // `router` must outlive the server and not change while it runs.
  explicit HttpServer(const Router& router) : router_(router) {}
  ~HttpServer() { Stop(); }
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  // Listens and serves from background threads; false with `error` set when it cannot.
  bool Start(const ServerOptions& options, std::string* error);
  uint16_t port() const { return port_; }

  // Stops taking connections, lets the requests being answered finish (up to `grace`), then
  // closes every connection.
  void Stop(std::chrono::milliseconds grace = std::chrono::seconds(10));

 private:
  struct Glue;
  friend struct Glue;
  // Fills the request from the connection and asks the router.
  Response Build(MHD_Connection* connection, Request& request) const;

  const Router& router_;
  ServerOptions options_;
  MHD_Daemon* daemon_ = nullptr;
  uint16_t port_ = 0;
  std::atomic<int> in_flight_{0};
};

// Whether `address` is a loopback address (127.0.0.0/8 or ::1); false when it is not numeric.
bool IsLoopback(const std::string& address);

}  // namespace lumora::serve
