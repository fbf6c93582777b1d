// The resource class of type 3 (Fill-in-the-Blanks): one text list.
//
// Stored form after the head and the type tag: u8 group key, the text list.
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/object_list.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type3Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 3;

  const char* ClassName() const override { return "Type3Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint8_t groupKey = 0;
  TextList texts;
};

}  // namespace lumora

#pragma GCC visibility pop
