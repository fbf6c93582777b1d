// A discipline's package catalogue in memory: one record per row of t_Packages,
// t_Translations and t_PackagesResources. The records store nothing of their own; the lists
// are filled by the listing functions and owned by whoever made them.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/keyed_table.h>
#include <lumora/support/wide_text.h>

#include <cstdint>
#include <memory>
#include <vector>

// The dates of the package catalogue, as its records keep them.

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// Seconds since 1 January 1970, in the 32 bits the package records keep.
using CalendarTime = int32_t;

}  // namespace lumora

#pragma GCC visibility pop

// The library's public surface: exported from the shared library.
#pragma GCC visibility push(default)

namespace lumora {

// A package; its identifier is its key in the PackageList.
class PackageRecord : public Object {
 public:
  const char* ClassName() const override { return "PackageRecord"; }

  CalendarTime dateLastGeneration = 0;
  int32_t version = 0;
  int32_t idString = 0;  // the title's text identifier in t_Translations
};

using PackageList = KeyedTable<PackageRecord>;

// One text in one language; the text carries the code page of its language.
class TranslationRecord : public Object {
 public:
  const char* ClassName() const override { return "TranslationRecord"; }

  int32_t idString = 0;
  uint8_t idLanguage = 0;
  int32_t idDataType = 0;
  CodePageText text;
};

// The translations in the order they were read; no keys. Clearing or destroying the list
// destroys its records.
class TranslationList : public Object {
 public:
  const char* ClassName() const override { return "TranslationList"; }

  uint32_t size() const { return static_cast<uint32_t>(records_.size()); }
  TranslationRecord& operator[](uint32_t i) const { return *records_[i]; }
  TranslationRecord& Add(std::unique_ptr<TranslationRecord> record) {
    records_.push_back(std::move(record));
    return *records_.back();
  }
  void Clear() { records_.clear(); }

 private:
  std::vector<std::unique_ptr<TranslationRecord>> records_;
};

// One resource of a package; the package identifier is its key in the PackageResourceList,
// repeated once per resource.
class PackageResourceRecord : public Object {
 public:
  const char* ClassName() const override { return "PackageResourceRecord"; }

  int32_t idResource = 0;  // exercise type
  int32_t idItem = 0;      // resource identifier
};

using PackageResourceList = KeyedTable<PackageResourceRecord>;

}  // namespace lumora

#pragma GCC visibility pop
