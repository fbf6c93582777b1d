// The records of the five classification tables. Every table maps an id to a label and a value;
// grammatical categories add one label per interface language, and syntactic functions are
// numbered with 16 bits where the other tables use 32.
#pragma once

#include <lumora/lexicon/set_fields.h>
#include <lumora/platform/archive.h>

#include <array>
#include <cstdint>
#include <string>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

template <typename Id>
struct ClassRecord {
  Id id = 0;
  RecordText label;
  uint16_t value = 0;  // kept and handed back as read; nothing here interprets it

  Id Key() const { return id; }
  void Serialize(Archive& ar, uint32_t /*schema*/) {
    ar.Io(id);
    IoText(ar, label);
    ar.Io(value);
  }
};

inline constexpr size_t kCatGramLanguages = 10;

struct CatGramRecord : ClassRecord<uint32_t> {
  // Entry 0 is kept and saved but never chosen by a language; see getCatGramLabel.
  std::array<RecordText, kCatGramLanguages> labels;

  void Serialize(Archive& ar, uint32_t schema) {
    ClassRecord<uint32_t>::Serialize(ar, schema);
    for (RecordText& text : labels) IoText(ar, text);
  }
};

using FamSemRecord = ClassRecord<uint32_t>;
using GrammarPointCategoryRecord = ClassRecord<uint32_t>;
using VerbTenseRecord = ClassRecord<uint32_t>;
using SyntacticFunctionRecord = ClassRecord<uint16_t>;

}  // namespace lumora

#pragma GCC visibility pop
