// The index of type 21, a byte list: the first value byte of every resource, then the numbers
// of those resources in the same order. Resources carry no group key, so the index only lists
// them; every resource is usable.
//
// Stored form: ByteArray of the values, then DWordArray of the resource numbers.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/type_index.h>
#include <lumora/support/paths.h>

#include <cstdint>
#include <string>

namespace lumora {

class Type21Index : public TypeIndex {
 public:
  const char* ClassName() const override { return "Type21Index"; }
  void Serialize(Archive& ar) override {
    values.Serialize(ar);
    numbers.Serialize(ar);
  }
  bool Load(const std::string& path) override { return LoadArchiveFile(path, false, *this); }

  void Add(uint32_t number, uint8_t value) {
    values.Add(value);
    numbers.Add(number);
  }

  ByteArray values;
  DWordArray numbers;
};

}  // namespace lumora
