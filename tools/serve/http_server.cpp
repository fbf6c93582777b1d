#include "serve/http_server.h"

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>
#include <unistd.h>

#include <cctype>
#include <cstring>
#include <thread>

#include "serve/url_text.h"

namespace lumora::serve {
namespace {

// Each connection may hold this much for its request line and headers; a longer request is
// refused by the engine (414 or 431) before any handler runs.
constexpr size_t kConnectionMemory = 64 * 1024;
constexpr unsigned kConnectionLimit = 4096;
constexpr unsigned kIdleSeconds = 30;

// The engine would decode the path before we see it, turning "%2F" into a separator; we take it
// as sent and decode each segment ourselves.
size_t KeepEscapes(void*, MHD_Connection*, char* text) { return std::strlen(text); }

MHD_Result CollectHeader(void* cls, MHD_ValueKind, const char* key, const char* value) {
  std::string name(key);
  for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  static_cast<Request*>(cls)->headers.emplace(std::move(name), value ? value : "");
  return MHD_YES;
}

struct QueryCollector {
  Request* request;
  bool broken = false;
};

MHD_Result CollectQuery(void* cls, MHD_ValueKind, const char* key, const char* value) {
  auto* collector = static_cast<QueryCollector*>(cls);
  std::optional<std::string> name = PercentDecode(key, true);
  std::optional<std::string> text = PercentDecode(value ? value : "", true);
  if (!name || !text) {
    collector->broken = true;
    return MHD_NO;
  }
  collector->request->query.emplace(std::move(*name), std::move(*text));
  return MHD_YES;
}

MHD_Response* EngineResponse(Response& response) {
  MHD_Response* answer =
      response.file.valid()
          ? MHD_create_response_from_fd_at_offset64(response.file_length, response.file.get(),
                                                    response.file_offset)
          : MHD_create_response_from_buffer(response.body.size(), response.body.data(),
                                            MHD_RESPMEM_MUST_COPY);
  if (!answer) return nullptr;
  if (response.file.valid()) response.file.Release();  // the engine closes it now
  for (const auto& [name, value] : response.headers) {
    MHD_add_response_header(answer, name.c_str(), value.c_str());
  }
  return answer;
}

// What the engine keeps for a request between calls: where its answer stands.
char kHeadersRead;
char kAnswered;

}  // namespace

struct HttpServer::Glue {
  // The engine calls once the headers are in, then for each piece of a body, then once at the
  // end. A request answered on that first call would cost its connection (the engine cannot yet
  // tell whether a body follows), so a request without a body is answered on the last call, and
  // one with a body as soon as the body starts: nothing here reads a body.
  static MHD_Result Answer(void* cls, MHD_Connection* connection, const char* url,
                           const char* method, const char*, const char*, size_t* upload_size,
                           void** request_state) {
    auto* server = static_cast<HttpServer*>(cls);
    if (!*request_state) {
      // Counted from here until the engine reports the request complete; Stop waits for it.
      *request_state = &kHeadersRead;
      server->in_flight_.fetch_add(1);
      return MHD_YES;
    }
    *upload_size = 0;
    if (*request_state == &kAnswered) return MHD_YES;
    *request_state = &kAnswered;
    try {
      Request request;
      request.method = method;
      request.raw_path = url;
      Response response = server->Build(connection, request);
      AddSecurityHeaders(response);
      MHD_Response* answer = EngineResponse(response);
      if (!answer) return MHD_NO;
      const MHD_Result queued =
          MHD_queue_response(connection, static_cast<unsigned>(response.status), answer);
      MHD_destroy_response(answer);
      if (server->options_.on_answer) server->options_.on_answer(request, response.status);
      return queued;
    } catch (...) {
      // Nothing may cross into the engine: dropping the connection is the answer left.
      return MHD_NO;
    }
  }

  static void Completed(void* cls, MHD_Connection*, void** request_state,
                        MHD_RequestTerminationCode) {
    if (*request_state) static_cast<HttpServer*>(cls)->in_flight_.fetch_sub(1);
    *request_state = nullptr;
  }
};

Response HttpServer::Build(MHD_Connection* connection, Request& request) const {
  std::optional<std::vector<std::string>> segments = SplitPath(request.raw_path);
  if (!segments) return ErrorResponse(400, "malformed path");
  request.segments = std::move(*segments);
  QueryCollector query{&request};
  MHD_get_connection_values(connection, MHD_GET_ARGUMENT_KIND, &CollectQuery, &query);
  if (query.broken) return ErrorResponse(400, "malformed query");
  MHD_get_connection_values(connection, MHD_HEADER_KIND, &CollectHeader, &request);
  return router_.Dispatch(request);
}

bool HttpServer::Start(const ServerOptions& options, std::string* error) {
  options_ = options;
  sockaddr_in v4{};
  sockaddr_in6 v6{};
  const sockaddr* address = nullptr;
  unsigned flags = MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_EPOLL | MHD_USE_ITC;
  if (::inet_pton(AF_INET, options.address.c_str(), &v4.sin_addr) == 1) {
    v4.sin_family = AF_INET;
    v4.sin_port = htons(options.port);
    address = reinterpret_cast<const sockaddr*>(&v4);
  } else if (::inet_pton(AF_INET6, options.address.c_str(), &v6.sin6_addr) == 1) {
    v6.sin6_family = AF_INET6;
    v6.sin6_port = htons(options.port);
    address = reinterpret_cast<const sockaddr*>(&v6);
    flags |= MHD_USE_IPv6;
  } else {
    *error = "not a numeric IPv4 or IPv6 address: " + options.address;
    return false;
  }
  const unsigned threads =
      options.threads ? options.threads : std::max(1u, std::thread::hardware_concurrency());
  daemon_ = MHD_start_daemon(
      flags, options.port, nullptr, nullptr, &Glue::Answer, this, MHD_OPTION_SOCK_ADDR, address,
      MHD_OPTION_THREAD_POOL_SIZE, threads, MHD_OPTION_CONNECTION_LIMIT, kConnectionLimit,
      MHD_OPTION_CONNECTION_TIMEOUT, kIdleSeconds, MHD_OPTION_CONNECTION_MEMORY_LIMIT,
      kConnectionMemory, MHD_OPTION_NOTIFY_COMPLETED, &Glue::Completed, this,
      MHD_OPTION_UNESCAPE_CALLBACK, &KeepEscapes, nullptr, MHD_OPTION_END);
  if (!daemon_) {
    *error = "cannot listen on " + options.address + " port " + std::to_string(options.port) +
             " (in use, or not an address of this machine?)";
    return false;
  }
  const MHD_DaemonInfo* info = MHD_get_daemon_info(daemon_, MHD_DAEMON_INFO_BIND_PORT);
  port_ = info ? info->port : options.port;
  return true;
}

void HttpServer::Stop(std::chrono::milliseconds grace) {
  if (!daemon_) return;
  // No new connection is taken from here on. The listening socket stays open until the engine
  // has stopped: its threads may still be taking it out of their polling sets, and one that
  // finds it closed aborts the program.
  const MHD_socket listener = MHD_quiesce_daemon(daemon_);
  const auto deadline = std::chrono::steady_clock::now() + grace;
  while (in_flight_.load() > 0 && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  MHD_stop_daemon(daemon_);
  daemon_ = nullptr;
  if (listener != MHD_INVALID_SOCKET) ::close(listener);
}

bool IsLoopback(const std::string& address) {
  in_addr v4{};
  in6_addr v6{};
  if (::inet_pton(AF_INET, address.c_str(), &v4) == 1) return (ntohl(v4.s_addr) >> 24) == 127;
  return ::inet_pton(AF_INET6, address.c_str(), &v6) == 1 && IN6_IS_ADDR_LOOPBACK(&v6);
}

}  // namespace lumora::serve
