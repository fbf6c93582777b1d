// `lumora serve ROOT [--address A] [--port P] [--threads N] [--quiet]`: serves a content root
// over HTTP, read-only, until SIGINT or SIGTERM.
#include <lumora/lumora.h>
#include <lumora/maintenance.h>

#include <pthread.h>
#include <signal.h>

#include <cstdio>
#include <map>
#include <memory>

#include "commands.h"
#include "content_args.h"
#include "serve/api_routes.h"
#include "serve/file_routes.h"
#include "serve/http_server.h"

namespace lumora::cli {
namespace {

struct Options {
  std::string root;
  std::string address = "127.0.0.1";
  uint16_t port = 8470;
  unsigned threads = 0;
  bool quiet = false;
};

// The documents of the API are not served yet: every route says so.
class PendingDocuments : public serve::DocumentSource {
 public:
  serve::Answer Open() const override { return Pending(); }
  serve::Answer Index(uint32_t, std::optional<uint32_t>) const override { return Pending(); }
  serve::Answer Resource(uint32_t, uint32_t, uint32_t) const override { return Pending(); }
  serve::Answer GlossaryFind(uint32_t, const serve::GlossaryQuery&) const override {
    return Pending();
  }
  serve::Answer GlossaryWord(uint32_t, uint32_t) const override { return Pending(); }
  serve::Answer GlossaryLetters(uint32_t) const override { return Pending(); }
  serve::Answer GrammarPoint(uint32_t, uint32_t) const override { return Pending(); }
  serve::Answer GrammarLevels(uint32_t) const override { return Pending(); }
  serve::Answer GrammarCategories(uint32_t) const override { return Pending(); }
  serve::Answer Classification() const override { return Pending(); }
  serve::Answer Packages(uint32_t) const override { return Pending(); }
  serve::Answer Check(std::optional<uint32_t>) const override { return Pending(); }

 private:
  static serve::Answer Pending() {
    return serve::Answer::Failure(501, "this server does not answer documents yet");
  }
};

std::map<uint32_t, std::string> LocalRoots() {
  std::map<uint32_t, std::string> roots;
  for (const DisciplineSummary& d : OpenedDisciplines()) roots.emplace(d.id, d.localRoot);
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
  OpenedContent content(options.root, 0);
  if (!content.ok()) throw CommandFailure("no discipline could be opened below " + options.root);
  PendingDocuments documents;
  serve::Router router;
  serve::AddApiRoutes(router, documents);
  serve::AddMediaRoutes(router, LocalRoots());

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
