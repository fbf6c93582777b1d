// `lumora serve ROOT [--address A] [--port P] [--threads N] [--quiet]`: serves a content root
// over HTTP, read-only, until SIGINT or SIGTERM.
#include <lumora/content.h>
#include <lumora/maintenance.h>

#include <pthread.h>
#include <signal.h>

#include <cstdio>
#include <map>
#include <memory>

#include "commands.h"
#include "content_documents.h"
#include "serve/api_routes.h"
#include "serve/file_routes.h"
#include "serve/http_server.h"
#include "serve/media_links.h"
#include "serve_page.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  std::string address = "127.0.0.1";
  uint16_t port = 8470;
  unsigned threads = 0;
  bool quiet = false;
};

// Opens the root with its package databases, or without them when they do not open, so that a
// root without databases still serves everything but its packages.
std::unique_ptr<ContentRoot> OpenRoot(const std::string& root) {
  Status status;
  std::unique_ptr<ContentRoot> content = ContentRoot::Open(root, {0, true}, &status);
  if (content) return content;
  content = ContentRoot::Open(root, {0, false}, &status);
  if (!content) throw CommandFailure(status.ToString());
  std::fprintf(stderr, "note: the package databases did not open; packages are not served\n");
  return content;
}

struct Roots {
  std::map<uint32_t, std::string> local;
  std::map<uint32_t, serve::DisciplineRoots> linked;
};

Roots RootsOf(const ContentRoot& content) {
  Roots roots;
  for (const DisciplineSummary& d : content.Disciplines()) {
    roots.local.emplace(d.id, d.localRoot);
    // Media paths in the documents are UTF-8 as the descriptions make them; so is their root.
    roots.linked.emplace(
        d.id, serve::DisciplineRoots{PrintableText(d.urlRoot, kWindowsAnsi), d.localRoot});
  }
  return roots;
}

std::string UrlOf(const std::string& address, uint16_t port) {
  const bool v6 = address.find(':') != std::string::npos;
  return "http://" + (v6 ? "[" + address + "]" : address) + ":" + std::to_string(port) + "/";
}

// Blocks the stop signals in this thread and in the serving threads it starts, so that they
// are taken here, by WaitForStop, and nowhere else.
sigset_t BlockStopSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

void Run(const Options& options) {
  const std::unique_ptr<ContentRoot> content = OpenRoot(options.root);
  const Roots roots = RootsOf(*content);
  const serve::MediaLinks links(roots.linked);
  const ContentDocuments documents(*content, links);
  serve::Router router;
  serve::AddApiRoutes(router, documents);
  serve::AddMediaRoutes(router, roots.local);
  AddPage(router, *content);

  serve::ServerOptions server_options{options.address, options.port, options.threads, {}};
  if (!options.quiet) {
    server_options.on_answer = [](const serve::Request& request, int status) {
      std::fprintf(stderr, "%s %s %d\n", request.method.c_str(), request.raw_path.c_str(), status);
    };
  }
  const sigset_t signals = BlockStopSignals();
  serve::HttpServer server(router);
  std::string error;
  if (!server.Start(server_options, &error)) throw CommandFailure(error);
  if (!serve::IsLoopback(options.address)) {
    std::fprintf(stderr,
                 "warning: listening on %s, which other machines may reach; the content is "
                 "served to anyone who asks\n",
                 options.address.c_str());
  }
  std::printf("serving %s at %s\n", options.root.c_str(),
              UrlOf(options.address, server.port()).c_str());
  std::fflush(stdout);
  int taken = 0;
  sigwait(&signals, &taken);
  server.Stop();
}

void AddServeCommand(CLI::App& app) {
  auto options = std::make_shared<Options>();
  auto* command = app.add_subcommand("serve", "Serve a content root over HTTP (read-only)");
  command->add_option("ROOT", options->root, "Content root (the folder of Content.ini)")
      ->required();
  command->add_option("--address", options->address, "Address to listen on")->capture_default_str();
  command->add_option("--port", options->port, "Port to listen on (0: any free port)")
      ->capture_default_str();
  command->add_option("--threads", options->threads, "Serving threads (0: one per processor)");
  command->add_flag("--quiet", options->quiet, "Do not log each request on standard error");
  command->callback([options] { Run(*options); });
}

const CommandRegistration reg{"serve", &AddServeCommand};

}  // namespace
}  // namespace lumora::cli
