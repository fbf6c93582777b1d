// The description index of a discipline (type 2000): a KeyedTable of entries keyed by number,
// each an attribute byte (its group key), titles per language and one medium.
//
// Entry stored form: u8 attribute, LanguageTexts, MediaRef (7 bytes).
#pragma once

#include <lumora/platform/keyed_table.h>
#include <lumora/resources/index_forms.h>
#include <lumora/resources/language_texts.h>
#include <lumora/resources/media_ref.h>

#include <cstdint>

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

class Type2000Entry : public Object {
 public:
  const char* ClassName() const override { return "Type2000Entry"; }
  void Serialize(Archive& ar) override;

  uint8_t attribute = 0;
  LanguageTexts titles;
  MediaRef media;
};

class Type2000Index : public NumberListIndex<Type2000Entry> {
 public:
  const char* ClassName() const override { return "Type2000Index"; }

  // Empties `keys`, appends each entry's attribute in table order unless already present,
  // then sorts them ascending.
  void CollectGroupKeys(ByteArray& keys) const;
  // Adds a copy of every entry whose attribute equals `filter` (every entry for filter 0) to
  // `destination`, under the entry's own key.
  void CopyEntries(uint8_t filter, KeyedTable<Type2000Entry>& destination) const;
};

}  // namespace lumora

#pragma GCC visibility pop
