// The text list of many exercise types: marked texts in the object-list form (u32 count, then
// each text's own stored form).
#pragma once

#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

using TextList = ObjectList<MarkedText>;

}  // namespace lumora

#pragma GCC visibility pop
