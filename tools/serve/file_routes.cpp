#include "serve/file_routes.h"

#include <cstdio>
#include <memory>

#include "serve/file_answer.h"
#include "serve/file_root.h"
#include "serve/media_types.h"
#include "serve/url_text.h"

namespace lumora::serve {
namespace {

Response ServeBelow(const FileRoot& root, const Request& request, const RouteMatch& match) {
  std::optional<OpenedFile> file = root.Open(match.rest);
  if (!file) return ErrorResponse(404, "no such file");
  return FileAnswer(request, std::move(*file), ContentTypeFor(match.rest.back()));
}

// FNV-1a: a tag that changes with the bytes, for assets that have no modification time.
std::string AssetEtag(std::string_view bytes) {
  uint64_t hash = 14695981039346656037ull;
  for (unsigned char c : bytes) hash = (hash ^ c) * 1099511628211ull;
  char tag[24];
  std::snprintf(tag, sizeof tag, "\"%016llx\"", static_cast<unsigned long long>(hash));
  return tag;
}

}  // namespace

void AddMediaRoutes(Router& router, const std::map<uint32_t, std::string>& local_roots) {
  auto roots = std::make_shared<std::map<uint32_t, FileRoot>>();
  for (const auto& [id, folder] : local_roots) roots->emplace(id, FileRoot(folder));
  router.Get("/media/d/{id}/{path...}", [roots](const Request& request, const RouteMatch& match) {
    const std::optional<uint32_t> id = ParseNumber(match["id"]);
    if (!id) return ErrorResponse(400, "not a valid discipline: " + match["id"]);
    const auto root = roots->find(*id);
    if (root == roots->end()) return ErrorResponse(404, "no open discipline " + match["id"]);
    return ServeBelow(root->second, request, match);
  });
}

std::string MediaUrl(uint32_t discipline, std::string_view relative_path) {
  std::string url = "/media/d/" + std::to_string(discipline);
  size_t start = 0;
  while (start <= relative_path.size()) {
    const size_t end = std::min(relative_path.find('/', start), relative_path.size());
    url += '/' + PercentEncode(relative_path.substr(start, end - start));
    start = end + 1;
  }
  return url;
}

void AddFolderRoute(Router& router, std::string_view prefix, const std::string& folder) {
  auto root = std::make_shared<FileRoot>(folder);
  router.Get(std::string(prefix) + "/{path...}",
             [root](const Request& request, const RouteMatch& match) {
               return ServeBelow(*root, request, match);
             });
}

void AddAssetRoute(Router& router, std::string_view path, std::string_view bytes,
                   std::string_view content_type) {
  const std::string etag = AssetEtag(bytes);
  router.Get(path, [bytes, type = std::string(content_type), etag](const Request& request,
                                                                   const RouteMatch&) {
    Response response;
    if (EtagMatches(request.Header("if-none-match"), etag)) {
      response.status = 304;
    } else {
      response = BytesResponse(200, std::string(bytes), type);
    }
    response.SetHeader("ETag", etag);
    return response;
  });
}

}  // namespace lumora::serve
