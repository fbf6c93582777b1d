// The resource class of type 15 (Grammar Practice/Sentence Practice): a plain text and a list of
// items, each a value, a marked text and its answers.
//
// Stored form after the head and the type tag: u32 value, u8 group key, the plain text
// (CodePageText), the items (object list).
//   item:     u32 value, text (MarkedText), answers
//   answers:  texts (text list); the object adds nothing around the list
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>
#include <lumora/support/wide_text.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type15Answers : public Object {
 public:
  const char* ClassName() const override { return "Type15Answers"; }
  void Serialize(Archive& ar) override { texts.Serialize(ar); }

  TextList texts;
};

class Type15Item : public Object {
 public:
  const char* ClassName() const override { return "Type15Item"; }
  void Serialize(Archive& ar) override;

  uint32_t value = 0;
  MarkedText text;
  Type15Answers answers;
};

class Type15Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 15;

  const char* ClassName() const override { return "Type15Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint32_t value = 0;
  uint8_t groupKey = 0;
  CodePageText plainText;
  ObjectList<Type15Item> items;
};

}  // namespace lumora

#pragma GCC visibility pop
