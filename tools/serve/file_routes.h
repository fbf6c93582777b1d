// Routes that serve files: the media of each discipline below its local root, a folder under a
// URL prefix, and assets compiled into the program.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "serve/router.h"

namespace lumora::serve {

// GET /media/d/{id}/{path below the discipline's local root}. `local_roots` maps each discipline
// to its folder; an unknown discipline answers 404.
void AddMediaRoutes(Router& router, const std::map<uint32_t, std::string>& local_roots);

// The server's address of a file at `relative_path` ("C0001/r0000005/Q1/s0000010.swf", "/"
// separated) below the local root of `discipline`, each segment escaped.
std::string MediaUrl(uint32_t discipline, std::string_view relative_path);

// GET {prefix}/{path...}: the regular files below `folder`, with the safety of the media.
void AddFolderRoute(Router& router, std::string_view prefix, const std::string& folder);

// GET {path}: bytes held by the program (the page and its scripts). `bytes` must outlive the
// router.
void AddAssetRoute(Router& router, std::string_view path, std::string_view bytes,
                   std::string_view content_type);

}  // namespace lumora::serve
