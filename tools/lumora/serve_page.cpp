#include "serve_page.h"

#include <lumora/frame/opened_disciplines.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "page_files.h"
#include "resource_ids.h"
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

// Every resource number an index document of one type lists, in its order: grouped types list
// them in groups, type 1006 as numbers, types 1005 and 2000 as numbered entries.
std::vector<uint32_t> IndexedNumbers(const nlohmann::ordered_json& type) {
  std::vector<uint32_t> numbers;
  for (const auto& group : type.value("groups", nlohmann::ordered_json::array())) {
    for (const auto& n : group["resources"]) numbers.push_back(n.get<uint32_t>());
  }
  for (const auto& n : type.value("numbers", nlohmann::ordered_json::array())) {
    numbers.push_back(n.get<uint32_t>());
  }
  for (const auto& entry : type.value("entries", nlohmann::ordered_json::array())) {
    numbers.push_back(entry["number"].get<uint32_t>());
  }
  return numbers;
}

serve::Handler IdsHandler(const serve::DocumentSource& documents) {
  std::map<uint32_t, std::string> roots;
  for (const OpenedDiscipline& d : ListOpenedDisciplines()) roots.emplace(d.id, d.localRoot);
  return [&documents, roots](const serve::Request&, const serve::RouteMatch& match) {
    const std::optional<uint32_t> id = serve::ParseNumber(match["id"]);
    const std::optional<uint32_t> type = serve::ParseNumber(match["type"]);
    if (!id || !type) return serve::ErrorResponse(400, "not a discipline and a type");
    const auto root = roots.find(*id);
    if (root == roots.end()) return serve::ErrorResponse(404, "no open discipline " + match["id"]);
    const serve::Answer index = documents.Index(*id, *type);
    if (index.status != 200) return serve::ErrorResponse(index.status, index.error);
    nlohmann::ordered_json ids = nlohmann::ordered_json::array();
    for (const auto& t : index.document["types"]) {
      for (uint32_t i : IndexedResourceIds(root->second, *type, IndexedNumbers(t)))
        ids.push_back(i);
    }
    return serve::JsonResponse(200, {{"ids", std::move(ids)}});
  };
}

}  // namespace

void AddPage(serve::Router& router, const serve::DocumentSource& documents) {
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
  router.Get("/page/ids/{id}/{type}", IdsHandler(documents));
}

}  // namespace lumora::cli
