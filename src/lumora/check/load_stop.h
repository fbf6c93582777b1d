// The one finding for a glossary, grammar or classification whose load stopped at a table. The
// library goes on with what was loaded, so the finding says what it then holds; why the table
// failed is the set files' check to say.
#pragma once

#include <lumora/check/checked_root.h>
#include <lumora/check/content_check.h>

#include <string>
#include <string_view>

namespace lumora {

// Reports the load of `what` ("glossary", ...) from `folder` when it stopped at `stop`, the table
// that failed (empty when every table loaded); `first` names the table every load reads first.
// True when it stopped.
bool ReportLoadStop(const CheckedRoot& root, const std::string& folder, std::string_view what,
                    std::u16string_view stop, std::u16string_view first, CheckReport& report);

}  // namespace lumora
