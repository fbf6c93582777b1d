// The index of type 1005 (content elements): a number list whose entries carry two flags and a
// byte list. Entry stored form: one byte holding flag A in bit 0 and flag B in bit 1, then a
// ByteArray.
#pragma once

#include <lumora/platform/archive.h>
#include <lumora/platform/typed_array.h>
#include <lumora/resources/index_forms.h>

namespace lumora {

class Type1005Entry : public Object {
 public:
  const char* ClassName() const override { return "Type1005Entry"; }
  void Serialize(Archive& ar) override {
    if (ar.IsStoring()) {
      ar.WriteU8(static_cast<uint8_t>((flagA ? 1 : 0) | (flagB ? 2 : 0)));
    } else {
      const uint8_t flags = ar.ReadU8();
      flagA = (flags & 1) != 0;
      flagB = (flags & 2) != 0;
    }
    values.Serialize(ar);
  }

  bool flagA = false;
  bool flagB = false;
  ByteArray values;
};

using Type1005Index = NumberListIndex<Type1005Entry>;

}  // namespace lumora
