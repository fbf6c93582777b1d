#include "serve/media_links.h"

#include <string_view>

#include "serve/file_routes.h"
#include "serve/url_text.h"

namespace lumora::serve {

MediaLinks::MediaLinks(const std::map<uint32_t, DisciplineRoots>& roots) {
  for (const auto& [id, r] : roots) roots_.emplace(id, Roots{r.url_root, FileRoot(r.local_root)});
}

void MediaLinks::Add(uint32_t discipline, nlohmann::ordered_json& document) const {
  const auto roots = roots_.find(discipline);
  if (roots != roots_.end()) Walk(discipline, roots->second, document);
}

void MediaLinks::Walk(uint32_t discipline, const Roots& roots,
                      nlohmann::ordered_json& value) const {
  if (value.is_array()) {
    for (auto& item : value) Walk(discipline, roots, item);
    return;
  }
  if (!value.is_object()) return;
  for (auto& [key, field] : value.items()) {
    // "media" fields of the resource's own, and "allMedia", every medium gathered from it.
    const bool media = key == "media" || key == "allMedia";
    if (media && field.is_object()) Link(discipline, roots, field);
    if (media && field.is_array()) {
      for (auto& medium : field) {
        if (medium.is_object()) Link(discipline, roots, medium);
      }
    }
    Walk(discipline, roots, field);
  }
}

void MediaLinks::Link(uint32_t discipline, const Roots& roots,
                      nlohmann::ordered_json& medium) const {
  const auto path = medium.find("path");
  if (path == medium.end() || !path->is_string() || roots.url_root.empty()) return;
  const std::string& url = path->get_ref<const std::string&>();
  if (url.size() <= roots.url_root.size() ||
      url.compare(0, roots.url_root.size(), roots.url_root) != 0) {
    return;
  }
  // The part below the URL root, split and decoded as a request's path would be: no segment
  // can climb out of the root, and the file is judged as the media route judges it.
  const std::string below = url.substr(roots.url_root.size());
  const std::optional<std::vector<std::string>> segments = SplitPath("/" + below);
  if (!segments || segments->empty() || !roots.files.Open(*segments)) return;
  std::string relative;
  for (const std::string& segment : *segments) relative += (relative.empty() ? "" : "/") + segment;
  medium["href"] = MediaUrl(discipline, relative);
}

}  // namespace lumora::serve
