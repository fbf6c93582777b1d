#include "serve_page.h"

#include <lumora/content.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "page_files.h"
#include "serve/file_routes.h"
#include "serve/media_types.h"
#include "serve/url_text.h"

namespace lumora::cli {
namespace {

constexpr std::string_view kPageHtml = "index.html";

// Where Ruffle was installed, unless LUMORA_RUFFLE_DIR names another folder.
std::string RuffleFolder() {
  const char* folder = std::getenv("LUMORA_RUFFLE_DIR");
  return folder != nullptr && *folder != '\0' ? folder : LUMORA_RUFFLE_DIR;
}

serve::Handler IdsHandler(const ContentRoot& content) {
  return [&content](const serve::Request&, const serve::RouteMatch& match) {
    const std::optional<uint32_t> id = serve::ParseNumber(match["id"]);
    const std::optional<uint32_t> type = serve::ParseNumber(match["type"]);
    if (!id || !type) return serve::ErrorResponse(400, "not a discipline and a type");
    if (!content.Discipline(*id)) {
      return serve::ErrorResponse(404, "no open discipline " + match["id"]);
    }
    nlohmann::ordered_json ids = nlohmann::ordered_json::array();
    for (uint32_t i : content.ResourceIds(*id, *type)) ids.push_back(i);
    return serve::JsonResponse(200, {{"ids", std::move(ids)}});
  };
}

// The types of a discipline's index with how many resources each lists: what the discipline's
// view shows, without the index documents of every type.
serve::Handler TypesHandler(const ContentRoot& content) {
  return [&content](const serve::Request&, const serve::RouteMatch& match) {
    const std::optional<uint32_t> id = serve::ParseNumber(match["id"]);
    if (!id) return serve::ErrorResponse(400, "not a discipline");
    const std::optional<DisciplineSummary> discipline = content.Discipline(*id);
    if (!discipline) return serve::ErrorResponse(404, "no open discipline " + match["id"]);
    nlohmann::ordered_json types = nlohmann::ordered_json::array();
    for (uint32_t type : discipline->types) {
      types.push_back({{"type", type}, {"resources", content.ResourceIds(*id, type).size()}});
    }
    return serve::JsonResponse(200, {{"types", std::move(types)}});
  };
}

}  // namespace

void AddPage(serve::Router& router, const ContentRoot& content) {
  std::string_view page;
  for (const PageFile& file : PageFiles()) {
    serve::AddAssetRoute(router, "/page/" + std::string(file.path), file.bytes,
                         serve::ContentTypeFor(file.path));
    if (file.path == kPageHtml) page = file.bytes;
  }
  router.SetFallback([page](const serve::Request&, const serve::RouteMatch&) {
    return serve::BytesResponse(200, std::string(page), serve::ContentTypeFor(kPageHtml));
  });

  const std::string ruffle = RuffleFolder();
  const bool flash = std::filesystem::is_regular_file(ruffle + "/ruffle.js");
  if (flash) {
    serve::AddFolderRoute(router, "/ruffle", ruffle);
  } else {
    std::fprintf(stderr,
                 "note: no Flash player in %s (tools/install-deps installs it): the page offers "
                 ".swf media as downloads\n",
                 ruffle.c_str());
  }
  router.Get("/page/features.json", [flash](const serve::Request&, const serve::RouteMatch&) {
    return serve::JsonResponse(200, {{"flash", flash}});
  });
  router.Get("/page/ids/{id}/{type}", IdsHandler(content));
  router.Get("/page/types/{id}", TypesHandler(content));
}

}  // namespace lumora::cli
