// The framework's narrow string and string-array stored forms.
//
// A string is its length followed by its bytes. The length takes one byte below 0xFF; else
// 0xFF and a u16 below 0xFFFE; else 0xFF, 0xFFFF and a u32. A string array is its count as a
// u16 below 0xFFFF, else 0xFFFF and a u32, followed by that many strings.
#pragma once

#include <lumora/platform/object.h>

#include <string>
#include <vector>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Archive;

std::string ReadArchiveString(Archive& ar);
void WriteArchiveString(Archive& ar, const std::string& text);
void IoArchiveString(Archive& ar, std::string& text);

class StringArray : public Object {
 public:
  std::vector<std::string> items;

  const char* ClassName() const override { return "StringArray"; }
  void Serialize(Archive& ar) override;
};

}  // namespace lumora

#pragma GCC visibility pop
