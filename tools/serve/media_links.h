// Links a resource document's media to the server's own media addresses. A medium's "path" is
// its URL under the discipline's URL root; when that URL, below the root, names a file the
// media route serves, the medium gains "href": the server's address of that file.
#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <string>

#include "serve/file_root.h"

namespace lumora::serve {

struct DisciplineRoots {
  std::string url_root;    // as Content.ini names it, ending in "/"
  std::string local_root;  // the folder the media route serves
};

class MediaLinks {
 public:
  explicit MediaLinks(const std::map<uint32_t, DisciplineRoots>& roots);

  // Adds "href" to each medium of `document` (every object of a "media" list, or a "media"
  // object, at any depth) whose file exists below the local root of `discipline`.
  void Add(uint32_t discipline, nlohmann::ordered_json& document) const;

 private:
  struct Roots {
    std::string url_root;
    FileRoot files;
  };
  void Link(uint32_t discipline, const Roots& roots, nlohmann::ordered_json& medium) const;
  void Walk(uint32_t discipline, const Roots& roots, nlohmann::ordered_json& value) const;

  std::map<uint32_t, Roots> roots_;
};

}  // namespace lumora::serve
