// The JSON API under /api/: each route reads its numbers and parameters, refuses malformed ones
// with 400, and answers with the source's document or its failure as {"error": ...}.
#pragma once

#include "serve/document_source.h"
#include "serve/router.h"

namespace lumora::serve {

// `source` must outlive the router.
void AddApiRoutes(Router& router, const DocumentSource& source);

}  // namespace lumora::serve
