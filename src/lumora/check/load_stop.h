// The one finding for a glossary, grammar or classification whose load stopped at a table. The
// library goes on with what was loaded, so the finding says what it then holds; why the table
// failed is the set files' check to say.
#pragma once

#include <lumora/check/checked_root.h>
#include <lumora/check/content_check.h>

#include <string>
#include <string_view>

namespace lumora {

// Reports the load of `what` ("glossary", ...) from `folder` when it failed: `load` names the
// file of the table that stopped it; `first` names the table every load reads first. True when
// it stopped.
bool ReportLoadStop(const CheckedRoot& root, const std::string& folder, std::string_view what,
                    const LoadResult& load, std::string_view first, CheckReport& report);

}  // namespace lumora
