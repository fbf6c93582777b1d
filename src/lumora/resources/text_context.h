// Where a course text occurs: its context code, the glossary word it is, if any, and a note.
//
// Stored form: u32 code, u32 word index, then the note as an archive string. The user field
// is not stored.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/resources/context_code.h>

#include <cstdint>
#include <memory>
#include <string>

namespace lumora {

class TextContext : public Object {
 public:
  TextContext() = default;
  TextContext(ContextCode code, int32_t wordIndex, std::string note = {})
      : code(code), wordIndex(wordIndex), note(std::move(note)) {}

  const char* ClassName() const override { return "TextContext"; }
  void Serialize(Archive& ar) override;

  // A new context with the same code, word index and note; its user field starts at 0.
  virtual std::unique_ptr<TextContext> Clone() const;
  // Whether the code's fields are in range for the kind of place it names.
  virtual bool IsValid() const;

  ContextCode code;
  // Index of a glossary word; negative when the text is not a glossary word.
  int32_t wordIndex = -1;
  // Free for the owner of the context; neither stored nor copied.
  uint32_t userData = 0;
  std::string note;
};

}  // namespace lumora
