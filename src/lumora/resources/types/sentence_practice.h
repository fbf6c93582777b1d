// The common class of types 12 and 13 (Grammar Practice/Sentence Practice), which store the
// same fields: a value, a group key, one leading record, a list of records of the same kind and
// a plain text. Each record is a marked text followed by a text list.
//
// Stored form after the head and the type tag: u32 value, u8 group key, the leading record,
// the records (object list), the plain text (CodePageText).
//   record:  text (MarkedText), texts (text list)
#pragma once

#include <lumora/resources/exercise_resource.h>
#include <lumora/resources/marked_text.h>
#include <lumora/resources/object_list.h>
#include <lumora/support/wide_text.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class PracticeRecord : public Object {
 public:
  const char* ClassName() const override { return "PracticeRecord"; }
  void Serialize(Archive& ar) override;

  MarkedText text;
  TextList texts;
};

class SentencePracticeResource : public ExerciseResource {
 public:
  void Serialize(Archive& ar) override;

  uint32_t value = 0;
  uint8_t groupKey = 0;
  PracticeRecord leadingRecord;
  ObjectList<PracticeRecord> records;
  CodePageText plainText;
};

}  // namespace lumora

#pragma GCC visibility pop
