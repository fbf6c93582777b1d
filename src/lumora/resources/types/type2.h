// The resource class of type 2 (Word Order): a sentence and its words.
//
// Stored form after the head and the type tag: u8 group key, the sentence (MarkedText), the
// words (string array).
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type2Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 2;

  const char* ClassName() const override { return "Type2Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint8_t groupKey = 0;
  MarkedText sentence;
  StringArray words;
};

}  // namespace lumora

#pragma GCC visibility pop
