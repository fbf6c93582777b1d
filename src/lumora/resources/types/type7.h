// The resource class of type 7 (The Right Word): a text, a list of choices and a list of words.
//
// Stored form after the head and the type tag: u8 group key, the text (MarkedText), the
// choices (text list), the words (string array). `transientText` lives in memory only.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>

#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type7Resource : public ExerciseResource {
 public:
  static constexpr uint32_t kType = 7;

  const char* ClassName() const override { return "Type7Resource"; }
  void Serialize(Archive& ar) override;
  uint32_t GetType() const override { return kType; }

  uint8_t groupKey = 0;
  MarkedText text;
  TextList choices;
  StringArray words;
  // Held in memory only: never written, and a load leaves it as it was.
  std::string transientText;
};

}  // namespace lumora

#pragma GCC visibility pop
