// The resource class of type 16 (Grammatical Nature): one marked text.
//
// Stored form after the head and the type tag: u32 value, u8 group key, the text (MarkedText).
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type16Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 16;

  const char* ClassName() const override { return "Type16Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint32_t value = 0;
  uint8_t groupKey = 0;
  MarkedText text;
};

}  // namespace lumora

#pragma GCC visibility pop
