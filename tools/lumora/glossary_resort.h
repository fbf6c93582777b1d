// The `resort` view of `lumora glossary`: rebuilds a discipline's alphabetical order and letter
// index and shows the letters; with --write it saves what changed.
#pragma once

#include <CLI/CLI.hpp>

#include <cstdint>
#include <functional>
#include <string>

namespace lumora::cli {

// The glossary command's own arguments, as parsed.
struct GlossaryTarget {
  std::string root;
  uint32_t discipline = 0;
  bool json = false;
};

// Adds `resort [--write]` below `glossary`; `target` gives the command's arguments when the
// view runs.
void AddGlossaryResort(CLI::App& glossary, std::function<GlossaryTarget()> target);

}  // namespace lumora::cli
