// The resource class of type 17 (Cultural Card): two item lists of one kind, each item a value
// and an array of numbers.
//
// Stored form after the head and the type tag: u8 group key, the first items, the second items
// (object lists).
//   item:  u32 value, numbers (DWordArray)
#pragma once

#include <lumora/platform/typed_array.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/object_list.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type17Item : public Object {
 public:
  const char* ClassName() const override { return "Type17Item"; }
  void Serialize(Archive& ar) override;

  uint32_t value = 0;
  DWordArray numbers;
};

class Type17Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 17;

  const char* ClassName() const override { return "Type17Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint8_t groupKey = 0;
  ObjectList<Type17Item> firstItems;
  ObjectList<Type17Item> secondItems;
};

}  // namespace lumora

#pragma GCC visibility pop
