// The content type of a served file, from its extension (letter case ignored).
#pragma once

#include <string_view>

namespace lumora::serve {

// application/octet-stream for an extension not in the table.
std::string_view ContentTypeFor(std::string_view file_name);

}  // namespace lumora::serve
