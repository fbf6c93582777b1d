// The media placeholder files of one discipline: a few bytes each, placed in the quality
// folders so that the order a request asks for changes which file answers, and leaving some
// media out so that their lookups fail.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace lumora::sample {

// One medium's files: its stem ("p0000001"), its extension and the quality folders holding it.
struct MediumFiles {
  uint32_t course;
  uint32_t folder;
  std::string stem;
  const char* extension;
  std::initializer_list<int> qualities;
};

// Writes a few placeholder bytes as the medium's file in each of its quality folders below the
// Local root `root`.
bool WriteMedium(const std::string& root, const MediumFiles& medium, std::string* error);

// Writes below the discipline's Local root `root` the media of every course for the first
// kMediaUnits units (fewer when `scale` is smaller), and the description picture.
bool WriteSampleMedia(const std::string& root, int scale, std::string* error);

}  // namespace lumora::sample
