// One entry of the description index (type 2000), also the description a type 2000 resource
// holds: an attribute byte (its group key), titles per language and one medium.
//
// Stored form: u8 attribute, LanguageTexts, MediaRef (7 bytes).
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type2000Entry : public Object {
 public:
  const char* ClassName() const override { return "Type2000Entry"; }
  void Serialize(Archive& ar) override;

  uint8_t attribute = 0;
  LanguageTexts titles;
  MediaRef media;
};

}  // namespace lumora

#pragma GCC visibility pop
