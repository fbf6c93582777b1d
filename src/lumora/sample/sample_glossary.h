// The glossary of an opened sample discipline: one headword per meaning of the sample
// vocabulary in the course language, with written forms, sounds and their media, recognition
// data, clouds, translations into two other languages, comments, links from two lessons and
// between opposites, levels and classification ids, and the alphabetical order and letters the
// library computes.
#pragma once

#include <cstdint>
#include <string>

namespace lumora::sample {

// Saves the glossary into its folder below the discipline's Local root `root`, through the
// library, with the checksums in the folder's CRCFile.ini. `language` is the course language
// (French, German or English; any other gets the English words). `withIndex` also writes the
// sound and recognition indexes, and the sound files they require in every quality folder.
bool WriteSampleGlossary(const std::string& root, uint8_t language, bool withIndex,
                         std::string* error);

}  // namespace lumora::sample
