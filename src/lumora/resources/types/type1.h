// The resource class of type 1 (Word Association): two text lists.
//
// Stored form after the head and the type tag: u32 value, u8 group key, the first text list,
// the second text list.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/object_list.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type1Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 1;

  const char* ClassName() const override { return "Type1Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint32_t value = 0;
  uint8_t groupKey = 0;
  TextList firstTexts;
  TextList secondTexts;
};

}  // namespace lumora

#pragma GCC visibility pop
