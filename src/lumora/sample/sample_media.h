// The media files of one discipline, placed in the quality folders so that the order a request
// asks for changes which file answers, and leaving some media out so that their lookups fail.
// Flash media are small movies a player shows and plays; videos are a few placeholder bytes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace lumora::sample {

// One medium's files: its stem's letter ('s' sound, 'p' picture, 'v' video) and number, its
// extension and the quality folders holding it.
struct MediumFiles {
  uint32_t course;
  uint32_t folder;
  char letter;
  uint32_t number;
  const char* extension;
  std::initializer_list<int> qualities;
};

// The content of a medium's file: a picture, a tone or both for Flash files, after `letter`;
// a few bytes naming the file for the others.
std::string MediumBytes(char letter, uint32_t number, const std::string& extension);

// Writes the medium's file in each of its quality folders below the Local root `root`.
bool WriteMedium(const std::string& root, const MediumFiles& medium, std::string* error);

// Writes below the discipline's Local root `root` the media of every course for the first
// kMediaUnits units (fewer when `scale` is smaller), and the description picture.
bool WriteSampleMedia(const std::string& root, int scale, std::string* error);

}  // namespace lumora::sample
