// The library-wide classification: five label tables that glossaries and grammars refer to by
// number. Loaded once per open from the common "Classes" folder and emptied at close; every
// glossary borrows it.
//
// The host calls it through its table of virtual operations, so their order is fixed and the
// unused slots keep their place. It is deliberately not an Object: the destructor is the first
// slot.
#pragma once

#include <lumora/lexicon/set_fields.h>
#include <lumora/lexicon/set_table.h>
#include <lumora/platform/archive.h>
#include <lumora/platform/load_result.h>

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

// The records of the five classification tables. Every table maps an id to a label and a value;
// grammatical categories add one label per interface language, and syntactic functions are
// numbered with 16 bits where the other tables use 32.

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

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// Labels by id, made narrow in code page 1252.
using ClassLabelMap = std::map<uint32_t, std::string>;

class Classification {
 public:
  Classification() = default;
  Classification(const Classification&) = delete;
  Classification& operator=(const Classification&) = delete;

  virtual ~Classification() = default;
  // The messages joined with line feeds, none after the last.
  virtual std::string getErrors() const;
  virtual bool unusedSlot2() { return false; }
  // Slots 3, 4 and 8 to 10 set one entry per record of their table; other entries stay.
  virtual bool getFamSemLabels(ClassLabelMap& labels) const;
  virtual bool getCatGramLabels(ClassLabelMap& labels) const;
  virtual bool unusedSlot5() { return false; }
  // The label of grammatical category `id` in the language numbered `language`; empty for an
  // absent id or a language without a label of its own.
  virtual std::u16string getCatGramLabel(uint32_t language, uint32_t id) const;
  virtual bool getUnusedLabels(ClassLabelMap& labels) const {
    labels.clear();
    return false;
  }
  virtual bool getSyntacticFunctionLabels(ClassLabelMap& labels, uint32_t unused) const;
  virtual bool getVerbTenseLabels(ClassLabelMap& labels, uint32_t unused) const;
  virtual bool getGrammarPointCategoryLabels(ClassLabelMap& labels, uint32_t unused) const;
  // A record's value; 0 when the id is absent.
  virtual uint16_t getCatGramValue(uint32_t id) const;
  virtual uint16_t getFamSemValue(uint32_t id) const;
  virtual uint16_t getSyntacticFunctionValue(uint32_t id) const;
  virtual uint16_t getVerbTenseValue(uint32_t id) const;
  virtual uint16_t getGrammarPointCategoryValue(uint32_t id) const;
  virtual bool unusedSlot16() { return false; }
  virtual bool unusedSlot17() { return false; }
  virtual bool unusedSlot18() { return false; }
  virtual bool unusedSlot19() { return false; }
  virtual bool unusedSlot20() { return false; }
  virtual bool unusedSlot21() { return false; }
  virtual bool unusedSlot22() { return false; }
  virtual bool unusedSlot23() { return false; }
  virtual bool unusedSlot24() { return false; }
  virtual bool unusedSlot25() { return false; }
  virtual bool unusedSlot26() { return false; }

  // Sets `folder` (with a trailing separator) and reads the five tables from it in order,
  // stopping at the first that fails.
  bool load(const std::string& folder_path);
  // load, saying which table failed, where in its file and why.
  LoadResult LoadWithReason(const std::string& folder_path);
  // Writes the five tables into `folder` in the same order; false when any could not be saved.
  bool save();
  // The separator is appended unless the text is empty or already ends in one.
  void SetFolder(const std::string& folder_path);
  // Empties the tables and the messages; the folder stays.
  void Clear();

  std::vector<std::string> errors;
  std::string folder;
  uint32_t formatVersion = 1;
  SetTable<FamSemRecord> famSem;
  SetTable<CatGramRecord> catGram;
  SetTable<GrammarPointCategoryRecord> grammarPointCategories;
  SetTable<VerbTenseRecord> verbTenses;
  SetTable<SyntacticFunctionRecord> syntacticFunctions;
};

}  // namespace lumora

#pragma GCC visibility pop
