// The grammar of an opened sample discipline: three points with titles in the course language
// and in English, pictures, subpoints with levels, categories, titles and keywords, parts,
// links from two lessons (sample_package.h) and the bubbles of the grammar screens.
#pragma once

#include <cstdint>
#include <string>

namespace lumora::sample {

// Saves the grammar into its folder below the discipline's Local root `root`, through the
// library, with the checksums in the folder's CRCFile.ini. `language` is the course language.
bool WriteSampleGrammar(const std::string& root, uint8_t language, std::string* error);

}  // namespace lumora::sample
