// The files of the page that `lumora serve` shows (web/page), compiled into the tool.
#pragma once

#include <span>
#include <string_view>

namespace lumora::cli {

struct PageFile {
  std::string_view path;  // below web/page, "/" separated: "index.html", "views/check.js"
  std::string_view bytes;
};

// Every file of the page, in path order.
std::span<const PageFile> PageFiles();

}  // namespace lumora::cli
