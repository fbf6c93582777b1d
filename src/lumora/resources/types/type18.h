// The resource class of type 18: a group key and a value, nothing else.
//
// Stored form after the head and the type tag: u8 group key, then u32 value. Unlike the other
// types that hold a value and a key, this one stores the key first.
#pragma once

#include <lumora/resources/exercise_resource.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type18Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 18;

  const char* ClassName() const override { return "Type18Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint8_t groupKey = 0;
  uint32_t value = 0;
};

}  // namespace lumora

#pragma GCC visibility pop
