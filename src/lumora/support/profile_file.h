// The reader of the content root's configuration file. The whole file is read at once into
// trimmed lines; sections and keys are then found by searches that start where the previous
// one stopped, so that reading sections and keys in file order finds each on the first lines
// tried. A ProfileFile belongs to the call that made it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lumora {

class ProfileFile {
 public:
  // Reads the file at `path`, sharing it with readers and writers elsewhere. False when it
  // cannot be opened or read; `lines` is then empty.
  bool Load(const std::string& path);
  // Makes current the first section met from the cursor on (wrapping to the first line) whose
  // header line begins with "[name]", ignoring case; text after the bracket does not matter.
  bool FindSection(const std::string& name);
  // The trimmed rest of the first line met from the cursor within the current section that
  // begins with key + "=", ignoring case; `defaultValue` when there is none or no section.
  std::string GetString(const std::string& key);
  // GetString read as a decimal signed long: blanks, sign, digits up to the first other
  // character; no digits read as 0.
  int32_t GetInt(const std::string& key);

  // The state stays public and in this order because the host shares the class layout.
  std::string defaultValue;
  std::vector<std::string> lines;  // every line trimmed, an empty one stored as " "
  int32_t lineCount = 0;
  int32_t sectionStart = 0;  // header line of the current section
  int32_t cursor = 0;        // line where the last search stopped
  uint8_t sectionFound = 0;  // whether the last section search succeeded
};

// A value read as GetInt reads it.
int32_t ParseProfileInt(std::string_view text);

}  // namespace lumora
