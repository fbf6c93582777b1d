// The media placeholder files of one discipline: a few bytes each, placed in the quality
// folders so that the order a request asks for changes which file answers, and leaving some
// media out so that their lookups fail.
#pragma once

#include <string>

namespace lumora::sample {

// Writes below the discipline's Local root `root` the media of every course for the first
// kMediaUnits units (fewer when `scale` is smaller), and the description picture.
bool WriteSampleMedia(const std::string& root, int scale, std::string* error);

}  // namespace lumora::sample
