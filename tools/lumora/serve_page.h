// The page of `lumora serve`: a course seen in a browser.
#pragma once

#include <lumora/content.h>

#include "serve/router.h"

namespace lumora::cli {

// Registers the page's files under /page/, the page itself for every other address the API and
// media do not take (its views have their own addresses: /d/1/type/40), the Flash player at
// /ruffle/ when it is installed (otherwise says once, on standard error, that Flash media are
// offered as downloads), and /page/ids/{d}/{type}: the resource ids behind a type's index.
// `content` must outlive the router.
void AddPage(serve::Router& router, const ContentRoot& content);

}  // namespace lumora::cli
