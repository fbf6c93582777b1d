// The resource class of type 4 (Mysterious Phrase): a plain text and two marked texts.
//
// Stored form after the head and the type tag: u8 group key, the plain text (CodePageText),
// the first and the second MarkedText.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/support/wide_text.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type4Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 4;

  const char* ClassName() const override { return "Type4Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint8_t groupKey = 0;
  CodePageText plainText;
  MarkedText firstText;
  MarkedText secondText;
};

}  // namespace lumora

#pragma GCC visibility pop
