// A description: the tree of named fields in which the library describes what it read (a
// resource, an index, a glossary word, ...). Its keys keep the order in which they were written,
// so that the same content is always described by the same bytes once serialised.
#pragma once

#include <lumora/resources/media_ref.h>

#include <cstdint>

#include <nlohmann/json.hpp>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

using Description = nlohmann::ordered_json;

// The Western code page: the narrow encoding of paths and of texts outside a discipline.
inline constexpr uint32_t kWindowsAnsi = 1252;

// {"kind", "folder", "resource", "path"}: the path as printable UTF-8, empty when not resolved.
Description DescribeMedia(const MediaRef& media);

}  // namespace lumora

#pragma GCC visibility pop
