// A glossary of the sample cut down to its first few words, with the tables that refer to them,
// so that a whole glossary folder fits in one fuzz input.
#pragma once

#include <cstdint>
#include <filesystem>

namespace seeds {

// Loads the glossary in `from`, keeps its first `words` words, rebuilds their alphabetical
// order for `language` and saves the result with its indexes in `to`. False when the sample
// glossary does not load or the small one cannot be saved.
bool WriteSmallGlossary(const std::filesystem::path& from, const std::filesystem::path& to,
                        uint8_t language, size_t words);

}  // namespace seeds
